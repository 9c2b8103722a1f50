// The stand-in host: loads the gauge module the way the simulator does and
// drives it (installs gauges, runs update cycles, dispatches the mouse),
// answering the module's service calls from its own tables.
#pragma once

#include <array>
#include <cstdint>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "frame/gauge_abi.h"
#include "host/sound_device.h"

namespace kestrane::host {

namespace model {
class Aircraft;
}

// One column of a trace: a state field, a token or a named variable.
struct TraceItem {
    enum Kind { Field, Token, Named } kind = Field;
    std::string name;  // field or named variable
    u32 id = 0;        // token
};

struct KeyEvent {
    u32 event;
    u32 value;
};

// What one element showed when its gauge was last drawn: the values its
// value callbacks returned and the text its string callback left.
struct Drawn {
    enum : u8 { kX = 1, kY = 2, kRotation = 4, kText = 8 };
    u8 have = 0;     // which of the above were drawn since install
    f64 value[3]{};  // needle value or x, then y, then rotation
    std::string text;
};

// The callbacks an element's kind has, as Drawn bits (a needle's value is kX).
u8 element_callbacks(const Element* e);

// One loaded copy of the module library.
class Module {
public:
    // Loads the library at `path`; on failure error() says why.
    explicit Module(const std::string& path);
    ~Module();
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    bool ok() const { return handle_ != nullptr && linkage_ != nullptr; }
    const std::string& error() const { return error_; }
    void* handle() const { return handle_; }
    ModuleLinkage* linkage() const { return linkage_; }
    ModuleImports* imports() const { return imports_; }
    const FieldTable* fields() const { return fields_; }
    const SoundTable* sounds() const { return sounds_; }
    const BitmapTable* bitmaps() const { return bitmaps_; }

private:
    void* handle_ = nullptr;
    ModuleLinkage* linkage_ = nullptr;
    ModuleImports* imports_ = nullptr;
    const FieldTable* fields_ = nullptr;
    const SoundTable* sounds_ = nullptr;
    const BitmapTable* bitmaps_ = nullptr;
    std::string error_;
};

// Default location of the module library built beside the host.
std::string default_module_path();

class Host {
public:
    explicit Host(std::string module_path = default_module_path());
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    bool ok() const { return module_ && module_->ok(); }
    const std::string& error() const { return error_; }

    // Unloads and loads the module again: every field at its value at load, no
    // gauge installed, tokens, named variables and windows cleared.
    bool reload();

    // Registry.
    int gauge_count() const;
    GaugeHeader* gauge(int index) const;
    GaugeHeader* gauge(std::string_view name) const;
    int gauge_index(std::string_view name) const;

    // Installed gauges, in install order.
    void install(GaugeHeader* g);
    void install_all();
    void remove(GaugeHeader* g);
    bool installed(const GaugeHeader* g) const;
    const std::vector<GaugeHeader*>& installed_gauges() const { return installed_; }

    // The host aircraft model: off at load; on, it answers every key event and
    // moves the tokens once per cycle before the gauges run.
    void set_aircraft(bool on);
    bool aircraft() const { return model_ != nullptr; }

    // Traces: one row per simulated second of the chosen items, as CSV.
    bool trace_to(const std::string& path);
    void trace_items(const std::vector<TraceItem>& items);

    // Update cycles: tokens 1 and 604 advance, then each installed gauge gets
    // service 6 and is drawn.
    void run(int cycles);
    // Draws one gauge: value and string callbacks of its shown elements.
    void draw(GaugeHeader* g);

    // Mouse: the first child row whose box holds (x, y) and whose flags name
    // the event. Returns false when no row matches.
    static MouseRect* hit(GaugeHeader* g, int x, int y, u32 event_flags);
    bool click(GaugeHeader* g, int x, int y, u32 flags = kMouseLeft);
    bool hold(GaugeHeader* g, int x, int y, int cycles);
    // The left button held down in real time: press calls the row's handler
    // with a left click; repeat_held, before each later cycle, calls it again
    // with the repeat flag when the row has it; release lets go.
    bool press(GaugeHeader* g, int x, int y);
    void repeat_held();
    void release() { held_ = {}; }
    bool holding() const { return held_.row != nullptr; }

    // Tokens (8 bytes each).
    void set_token(u32 id, f64 value);
    void set_token_bcd(u32 id, u32 bcd);
    f64 token(u32 id) const;
    void read_token(u32 id, u8 out[8]) const;

    // Named variables.
    void set_named(std::string_view name, f64 value);
    std::optional<f64> named(std::string_view name) const;

    // Calculator expressions answer the values the test sets (0 otherwise).
    void set_calc(std::string_view expression, f64 value);

    // Panel windows.
    bool window_open(u32 ident) const;
    void set_window(u32 ident, bool open) { window_set(ident, open); }
    // Open windows, in the order they were opened.
    const std::vector<u32>& open_windows() const { return windows_; }

    // Key events sent since the last clear.
    const std::vector<KeyEvent>& events() const { return events_; }
    void clear_events() { events_.clear(); }
    // Clears the logs of key events and sound operations (start of a step).
    void begin_step() {
        events_.clear();
        sound_.clear_log();
    }

    // Sounds: the device the module plays on, and the module's own table.
    SoundDevice& sound_device() { return sound_; }
    const SoundTable* sound_table() const { return sounds_; }
    // The buffer the module holds for sound `name` now (null when not loaded).
    SoundBuffer* sound(std::string_view name) const;
    // Whether the module names a sound `name`.
    bool has_sound(std::string_view name) const;
    // Mixes everything played from now on into a WAV file.
    bool record_audio(const std::string& path);

    // State fields.
    const FieldInfo* field(std::string_view name) const;
    f64 read_field(const FieldInfo& f) const;
    void write_field(const FieldInfo& f, f64 value);
    std::optional<f64> field_value(std::string_view name) const;
    bool set_field(std::string_view name, f64 value);
    const FieldTable* field_table() const { return module_ ? module_->fields() : nullptr; }
    // The module's bitmaps (null for a module without the table).
    const BitmapTable* bitmap_table() const { return module_ ? module_->bitmaps() : nullptr; }

    // Elements by chain number (e0 background); branch k >= 1 is the k-th
    // entry of en's child list after the chain's continuation.
    static Element* element(GaugeHeader* g, int n);
    static Element* element(GaugeHeader* g, int n, int branch);
    // What `e` of `g` showed when g was last drawn (null: not drawn since install).
    const Drawn* drawn(GaugeHeader* g, const Element* e) const;
    // Everything `g` showed when last drawn, in drawing order (each element,
    // then its children in list order); null when not drawn since load.
    const std::vector<Drawn>* drawn_slots(const GaugeHeader* g) const;
    // Every element of `g` in that drawing order: the slots of drawn_slots().
    static std::vector<Element*> drawing_order(GaugeHeader* g);
    static int chain_length(GaugeHeader* g);
    // Every element of `g` in drawing order with its label: "N" along the
    // chain, "N.K" for the K-th branch of eN (deeper branches add ".J").
    template <class Fn>
    static void for_each_element(GaugeHeader* g, Fn&& fn) {
        int n = 0;
        for (Element* e = element(g, 0); e != nullptr; e = element(g, ++n)) {
            const std::string label = std::to_string(n);
            fn(e, label);
            for_each_branch(e, label, fn, 0);
        }
    }
    static int child_rows(GaugeHeader* g);

    // Service-table entry points (the host is single-threaded; one host at a time).
    void svc_lookup_var(ModuleVar* var);
    void svc_trigger_key_event(u32 event, u32 value);
    u32 svc_panel_window_toggle(u32 ident);
    u32 svc_register_named(const char* name);
    f64 svc_get_named(u32 id) const;
    void svc_set_named(u32 id, f64 value);
    u32 svc_calc(const char* code, f64* result);

private:
    // Children of a chain element after the first, or all children of a branch.
    template <class Fn>
    static void for_each_branch(Element* e, const std::string& label, Fn& fn, int depth) {
        if (e->children == nullptr || depth > 16)
            return;
        const int first = depth == 0 ? 1 : 0;
        if (first == 1 && e->children[0] == nullptr)
            return;
        for (int k = first; e->children[k] != nullptr; ++k) {
            const std::string sub = label + "." + std::to_string(k + 1 - first);
            fn(e->children[k], sub);
            for_each_branch(e->children[k], sub, fn, depth + 1);
        }
    }

    void reset_tables();
    void store_token(u32 id, const void* bytes, std::size_t n);
    void draw_element(Element* e, int depth, std::vector<Drawn>& slots, std::size_t& at);
    void window_set(u32 ident, bool open);

    std::string module_path_;
    std::unique_ptr<Module> module_;
    std::string error_;
    HostServices services_{};

    std::vector<GaugeHeader*> installed_;
    // What a cycle does for each installed gauge, flattened at install: its
    // callback, then the elements that drawing does something for, each with
    // its slot in the gauge's drawn_ values (vectors never resized once the
    // gauge is installed).
    struct DrawItem {
        Element* e;
        std::uint32_t slot;
    };
    struct CycleGauge {
        GaugeHeader* g;
        Drawn* slots;
        std::uint32_t first, last;  // its range of draw_items_
    };
    std::vector<CycleGauge> cycle_;     // in install order, as installed_
    std::vector<DrawItem> draw_items_;  // every installed gauge's, in the same order
    void draw_item(Element* e, Drawn& d);
    // Per gauge, the drawn values of its elements in drawing (preorder) order.
    std::unordered_map<const GaugeHeader*, std::vector<Drawn>> drawn_;
    std::unordered_map<std::string_view, int> gauge_by_name_;
    std::unordered_map<std::string_view, const FieldInfo*> field_by_name_;

    static constexpr u32 kDirectTokens = 4096;
    static constexpr u32 kTokenSimTime = 604;
    f64 time_base_ = 0.0;                                    // token 604 as last set
    std::uint64_t time_cycles_ = 0;                          // cycles since
    std::vector<std::array<u8, 8>> tokens_;                  // ids below kDirectTokens
    std::unordered_map<u32, std::array<u8, 8>> far_tokens_;  // the rest
    std::vector<std::pair<std::string, f64>> named_;
    // The module registers its names every cycle, nearly always from the
    // same string literals: the id last found for a pointer, checked by text.
    struct NamedHit {
        const char* name = nullptr;
        u32 id = 0;
    };
    std::array<NamedHit, 256> named_hits_{};
    std::map<std::string, f64, std::less<>> calc_;
    // The same for calculator expressions: the answer last found for a
    // pointer (none: 0), checked by text; cleared when answers change.
    struct CalcHit {
        const char* code = nullptr;
        std::string text;
        const f64* answer = nullptr;
    };
    std::array<CalcHit, 64> calc_hits_{};
    std::vector<u32> windows_;  // open panel windows
    struct Held {
        MouseRect* row = nullptr;
        PixPoint at{};
    } held_;
    std::vector<KeyEvent> events_;
    SoundDevice& sound_ = SoundDevice::instance();
    const SoundTable* sounds_ = nullptr;
    std::unique_ptr<Recorder> recorder_;
    std::unique_ptr<model::Aircraft> model_;
    std::unique_ptr<std::ofstream> trace_;
    std::vector<TraceItem> trace_items_;
    void trace_row();
    void tag_sounds();
    int sound_index(std::string_view name) const;
};

}  // namespace kestrane::host
