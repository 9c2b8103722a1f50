// Records shared between the panel host and the gauge module: the linkage
// and import tables, gauge headers, elements, mouse rectangles, token
// variables and the host service table. Plain C-compatible layout; both the
// module and any host build against this one header.
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(_WIN32) && !defined(_WIN64)
#define KCALL __stdcall
#else
#define KCALL
#endif

#if defined(_WIN32)
#define KEXPORT __declspec(dllexport)
#else
#define KEXPORT __attribute__((visibility("default")))
#endif

namespace kestrane {

using u8 = std::uint8_t;
using i8 = std::int8_t;
using u16 = std::uint16_t;
using i16 = std::int16_t;
using u32 = std::uint32_t;
using i32 = std::int32_t;
using f32 = float;
using f64 = double;

struct GaugeHeader;
struct Element;

// Element kinds.
enum : u32 {
    kStaticImage = 0,
    kNeedle = 1,
    kString = 2,
    kSlider = 3,
    kIcon = 4,
    kMovingImage = 5,
    kSprite = 6,
};

// Image flags: drawing options, plus the one bit that changes at run time.
inline constexpr u32 kHidden = 0x40000000u;

// Token variable record: the module sets the token number, the host fills the rest.
struct ModuleVar {
    u32 id;
    void* host_ptr;
    u32 host_type;
    union {
        f64 n;
        u32 bcd;
        u8 raw[8];
    } value;
    f64 previous;
};

struct PixPoint {
    i32 x, y;
};

using GaugeCallback = void(KCALL*)(GaugeHeader* gauge, u32 service, std::uintptr_t extra);
using ValueCallback = f64(KCALL*)(Element* element);
using MouseHandler = u32(KCALL*)(PixPoint* pos, u32 flags);
using HeaderRoutine0 = void(KCALL*)();
using HeaderRoutine1 = void(KCALL*)(std::uintptr_t arg);
using ModuleEntry = void(KCALL*)();

struct FailureEntry {
    u32 key;
    u32 action;
};

// One entry of a needle's value table: a value and the dial point it maps to.
struct NeedlePoint {
    i32 x, y;
    f64 value;
    f64 host_angle;  // filled by the host
};

struct NeedleData {
    ModuleVar source;  // id 0 = none
    ValueCallback callback;
    NeedlePoint* table;
    u32 table_count;
    u32 rate;
};

struct StringData {
    ModuleVar source;
    i32 box_w, box_h;
    u32 char_count;
    u32 fg, bg, highlight;  // COLORREF 0x00BBGGRR
    const char* font;
    u32 font_weight;
    u8 charset;
    u32 format;
    ValueCallback callback;
    char* text;  // char_count + 1 bytes
};

struct SliderData {
    ModuleVar source_x, source_y;
    f64 scale_x, scale_y;
    ValueCallback callback_x, callback_y;
};

struct IconData {
    ModuleVar source;
    u32 image_count;
};

struct MovingData {
    ValueCallback callback_x, callback_y;
    f64 min_x, max_x, min_y, max_y;
};

struct SpriteData {
    i32 texture_cx, texture_cy;
    f32 scale_x, scale_y;
    ValueCallback callback_x, callback_y, callback_rot;
};

// Element record. The common part is the same for every kind; the tail
// holds the fields of the element's own kind.
struct Element {
    u32 kind;
    u32 bitmap;  // 0xFFFFFFFF for strings
    i32 x, y;
    i32 prev_x, prev_y;  // host-owned
    i32 ref_x, ref_y;    // pivot inside the bitmap (needles, sprites)
    GaugeHeader* gauge;
    Element* previous;   // host-owned
    Element** children;  // null-terminated; first entry continues the chain
    const FailureEntry* failures;
    u32 flags;
    u32 special;
    u32 reserved;
    union {
        NeedleData needle;
        StringData str;
        SliderData slider;
        IconData icon;
        MovingData moving;
        SpriteData sprite;
    } u;
};

// Mouse rectangle rows.
enum : u32 {
    kRowEnd = 0,
    kRowParent = 1,
    kRowChild = 2,
    kRowEndParent = 3,
    kRowTooltip = 4,
};

enum : u32 {
    kMouseLeft = 0x20000000u,
    kMouseRight = 0x80000000u,
    kMouseMove = 0x00400000u,
    kMouseRepeat = 0x00200000u,
};

enum : i32 {
    kCursorNone = -1,
    kCursorUp = 1,
    kCursorDown = 2,
    kCursorHand = 5,
};

struct MouseRect {
    u32 row;
    i32 x, y, w, h;
    i32 cursor;
    u32 help_id;
    u32 flags;
    u32 event_id;
    union {
        MouseHandler handler;
        const char* tooltip;
    } u;
    u32 handler_data;
};

struct GaugeHeader {
    u32 version;  // 0x320
    const char* name;
    Element** elements;  // one-entry list: the background e0
    HeaderRoutine0 query;
    HeaderRoutine1 install;
    HeaderRoutine0 initialize;
    HeaderRoutine0 update;
    HeaderRoutine1 generate;
    HeaderRoutine0 draw;
    HeaderRoutine0 kill;
    void* reserved1;
    u32 size_x_mm;
    u32 size_y_mm;
    MouseRect* mouse;
    GaugeCallback callback;
    u32 user_data;
    void* reserved2;
    void* reserved3;
};

struct ModuleLinkage {
    u32 module_id;  // 0x13
    ModuleEntry init;
    ModuleEntry deinit;
    u32 flags;
    u32 priority;
    u32 version;               // 0x900
    GaugeHeader* gauges[220];  // 219 headers, then null
};

// Host services, in the order of the host's service table.
struct HostServices {
    u32 version;
    void(KCALL* lookup_var)(ModuleVar* var);
    void(KCALL* trigger_key_event)(u32 event, u32 value);
    u32(KCALL* panel_window_toggle)(u32 ident);
    u32(KCALL* register_named_variable)(const char* name);
    f64(KCALL* get_named_variable_value)(u32 id);
    void(KCALL* set_named_variable_value)(u32 id, f64 value);
    u32(KCALL* execute_calculator_code)(const char* code, f64* result, i32* iresult, const char** sresult);
    void(KCALL* element_list_query)(Element* e);
    void(KCALL* element_list_install)(Element* e, std::uintptr_t arg);
    void(KCALL* element_list_initialize)(Element* e);
    void(KCALL* element_list_update)(Element* e);
    void(KCALL* element_list_generate)(Element* e, std::uintptr_t phase);
    void(KCALL* element_list_plot)(Element* e);
    void(KCALL* element_list_kill)(Element* e);
};

struct ImportEntry {
    u32 id;
    void* ptr;
};

inline constexpr u32 kImportPanels = 0xF;

struct ModuleImports {
    ImportEntry entries[2];  // {0xF, service table}, {0, null}
};

// State field table, exported so that tools can read and write any field by name.
enum FieldType : u32 { kU8, kI8, kU16, kI16, kU32, kI32, kF32, kF64 };

struct FieldInfo {
    const char* name;
    FieldType type;
    u32 offset;
    f64 load_value;
};

struct FieldTable {
    u32 count;
    void* state;
    u32 state_size;
    const FieldInfo* fields;
};

// The module's sounds: names in table order, the buffer handle of each (null
// when not loaded) and the volume table.
struct SoundTable {
    u32 count;
    const char* const* names;
    const void* handles;  // array of `count` buffer pointers
    const i16* volumes;
};

// The module's bitmaps on Linux, whole 24-bit BMP files by resource number
// (the Windows DLL carries them as bitmap resources instead).
struct BitmapTable {
    u32 count;
    const u32* ids;
    const u8* const* data;
    const u32* sizes;
};

inline constexpr const char* field_type_name(FieldType t) {
    constexpr const char* names[] = {"u8", "i8", "u16", "i16", "u32", "i32", "f32", "f64"};
    return static_cast<u32>(t) < 8 ? names[t] : "?";
}

}  // namespace kestrane

// Symbols exported by the module.
extern "C" {
extern KEXPORT kestrane::ModuleLinkage Linkage;
extern KEXPORT kestrane::ModuleImports ImportTable;
extern KEXPORT const kestrane::FieldTable KestraneFields;
extern KEXPORT const kestrane::SoundTable KestraneSounds;
#if !defined(_WIN32)
extern KEXPORT const kestrane::BitmapTable KestraneBitmaps;
#endif
}
