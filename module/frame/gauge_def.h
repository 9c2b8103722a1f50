// Compact gauge declarations.
//
// A gauge is written once, as constant data:
//
//   KESTRANE_GAUGE(tr_sw_lh,
//       gauge("kestrane elec_tr_sw_lh_jm47", 96, tr_sw_lh_update)
//           .elements(image(2048, 0x4001),              // e0 background
//                     icon(2064, 37, 0, 0x40000003),    // e1 on, guard closed
//                     ...)
//           .mouse(click(37, 0, 35, 43, kCursorHand, tr_lh_upper),
//                  click(37, 43, 35, 43, kCursorDown, tr_lh_lower)))
//
// The macro builds, at compile time, the host records: the header, the
// element chain (each element the first child of the one before), branch
// elements, text buffers and the mouse rectangle list. Nothing is linked at
// run time and nothing is allocated.
#pragma once

#include <cstddef>

#include "frame/elements.h"
#include "frame/gauge_abi.h"

namespace kestrane {

// Shared header routines (forward to the host's element-list services).
void KCALL header_query();
void KCALL header_install(std::uintptr_t arg);
void KCALL header_initialize();
void KCALL header_update();
void KCALL header_generate(std::uintptr_t arg);
void KCALL header_draw();
void KCALL header_kill();

namespace def {

inline constexpr u32 kNoBitmap = 0xFFFFFFFFu;
inline constexpr u32 kMaxText = 31;  // longest string element, in characters
inline constexpr int kMaxElements = 64;

// One element as declared: the record without its links, and where it hangs.
struct ElementDecl {
    Element e{};
    int parent = -1;  // -1: next in the chain; otherwise the chain index it branches from
};

struct AreaDecl {
    MouseRect r{};
};

constexpr Element base(u32 kind, u32 bitmap, i32 x, i32 y, u32 flags) {
    Element e{};
    e.kind = kind;
    e.bitmap = bitmap;
    e.x = x;
    e.y = y;
    e.flags = flags;
    return e;
}

// Static image (backgrounds, overlays).
constexpr ElementDecl image(u32 bitmap, u32 flags, i32 x = 0, i32 y = 0) {
    return {base(kStaticImage, bitmap, x, y, flags)};
}

// Icon: one image, shown or hidden by the gauge's callback.
constexpr ElementDecl icon(u32 bitmap, i32 x, i32 y, u32 flags) {
    ElementDecl s{base(kIcon, bitmap, x, y, flags)};
    s.e.u.icon = IconData{{}, 1};
    return s;
}

template <std::size_t N>
constexpr ElementDecl needle(u32 bitmap, i32 x, i32 y, i32 ref_x, i32 ref_y, u32 flags, ValueCallback cb,
                             NeedlePoint (&table)[N], u32 rate = 0, u32 token = 0) {
    ElementDecl s{base(kNeedle, bitmap, x, y, flags)};
    s.e.ref_x = ref_x;
    s.e.ref_y = ref_y;
    s.e.u.needle = NeedleData{{}, cb, table, static_cast<u32>(N), rate};
    s.e.u.needle.source.id = token;
    return s;
}

constexpr ElementDecl moving(u32 bitmap, i32 x, i32 y, u32 flags, ValueCallback cb_x, ValueCallback cb_y,
                             f64 min_x, f64 max_x, f64 min_y, f64 max_y) {
    ElementDecl s{base(kMovingImage, bitmap, x, y, flags)};
    s.e.u.moving = MovingData{cb_x, cb_y, min_x, max_x, min_y, max_y};
    return s;
}

constexpr ElementDecl sprite(u32 bitmap, i32 x, i32 y, i32 ref_x, i32 ref_y, u32 flags, i32 texture_cx,
                             i32 texture_cy, ValueCallback cb_x, ValueCallback cb_y, ValueCallback cb_rot,
                             f32 scale_x = 1.0f, f32 scale_y = 1.0f) {
    ElementDecl s{base(kSprite, bitmap, x, y, flags)};
    s.e.ref_x = ref_x;
    s.e.ref_y = ref_y;
    s.e.u.sprite = SpriteData{texture_cx, texture_cy, scale_x, scale_y, cb_x, cb_y, cb_rot};
    return s;
}

constexpr ElementDecl slider(u32 bitmap, i32 x, i32 y, u32 flags, u32 token_x, u32 token_y, f64 scale_x,
                             f64 scale_y, ValueCallback cb_x, ValueCallback cb_y) {
    ElementDecl s{base(kSlider, bitmap, x, y, flags)};
    s.e.u.slider = SliderData{{}, {}, scale_x, scale_y, cb_x, cb_y};
    s.e.u.slider.source_x.id = token_x;
    s.e.u.slider.source_y.id = token_y;
    return s;
}

struct TextStyle {
    u32 fg, bg, highlight;
};

// String element: Courier New, weight 400, character set 1, centred on one line.
constexpr ElementDecl text(i32 x, i32 y, i32 w, i32 h, u32 chars, TextStyle c, u32 token, ValueCallback cb,
                           u32 flags = 0x6) {
    ElementDecl s{base(kString, kNoBitmap, x, y, flags)};
    s.e.u.str =
        StringData{{}, w, h, chars, c.fg, c.bg, c.highlight, "Courier New", 400, 1, 0x25, cb, nullptr};
    s.e.u.str.source.id = token;
    return s;
}

// Gives an element the host's failure list (key and action pairs, ending
// with {0, 0}): the host fails the image by itself.
constexpr ElementDecl failing(ElementDecl s, const FailureEntry* list) {
    s.e.failures = list;
    return s;
}

// Hangs an element as a branch of chain element `parent`: drawn, but not numbered.
constexpr ElementDecl branch(int parent, ElementDecl s) {
    s.parent = parent;
    return s;
}

constexpr AreaDecl area(i32 x, i32 y, i32 w, i32 h, i32 cursor, u32 flags, MouseHandler fn) {
    AreaDecl a{};
    a.r.row = kRowChild;
    a.r.x = x;
    a.r.y = y;
    a.r.w = w;
    a.r.h = h;
    a.r.cursor = cursor;
    a.r.flags = flags;
    a.r.u.handler = fn;
    return a;
}
constexpr AreaDecl click(i32 x, i32 y, i32 w, i32 h, i32 cursor, MouseHandler fn) {
    return area(x, y, w, h, cursor, kMouseLeft, fn);
}
constexpr AreaDecl repeat(i32 x, i32 y, i32 w, i32 h, i32 cursor, MouseHandler fn) {
    return area(x, y, w, h, cursor, kMouseLeft | kMouseRepeat, fn);
}
constexpr AreaDecl hover(i32 x, i32 y, i32 w, i32 h, MouseHandler fn) {
    return area(x, y, w, h, kCursorNone, kMouseMove, fn);
}

// The declared gauge, before linking.
template <int NE, int NM>
struct GaugeDecl {
    const char* name;
    u32 width;
    GaugeCallback callback;
    u32 help_id;
    const char* tooltip;
    ElementDecl elems[NE > 0 ? NE : 1];
    AreaDecl areas[NM > 0 ? NM : 1];

    static constexpr int n_elems = NE;
    static constexpr int n_areas = NM;

    constexpr int n_strings() const {
        int n = 0;
        for (int i = 0; i < NE; ++i)
            n += elems[i].e.kind == kString;
        return n;
    }

    template <class Other>
    constexpr void copy_head(const Other& o) {
        name = o.name;
        width = o.width;
        callback = o.callback;
        help_id = o.help_id;
        tooltip = o.tooltip;
    }
    constexpr GaugeDecl help(u32 id) const {
        GaugeDecl g = *this;
        g.help_id = id;
        return g;
    }
    constexpr GaugeDecl tip(const char* t) const {
        GaugeDecl g = *this;
        g.tooltip = t;
        return g;
    }
    template <class... A>
    constexpr GaugeDecl<NE, static_cast<int>(sizeof...(A))> mouse(A... a) const {
        GaugeDecl<NE, static_cast<int>(sizeof...(A))> g{};
        g.copy_head(*this);
        for (int i = 0; i < NE; ++i)
            g.elems[i] = elems[i];
        AreaDecl list[] = {a...};
        for (int i = 0; i < static_cast<int>(sizeof...(A)); ++i)
            g.areas[i] = list[i];
        return g;
    }
    template <class... E>
    constexpr GaugeDecl<static_cast<int>(sizeof...(E)), NM> elements(E... e) const {
        GaugeDecl<static_cast<int>(sizeof...(E)), NM> g{};
        g.copy_head(*this);
        ElementDecl list[] = {e...};
        for (int i = 0; i < static_cast<int>(sizeof...(E)); ++i)
            g.elems[i] = list[i];
        for (int i = 0; i < NM; ++i)
            g.areas[i] = areas[i];
        return g;
    }
};

constexpr GaugeDecl<0, 0> gauge(const char* name, u32 width, GaugeCallback cb) {
    GaugeDecl<0, 0> g{};
    g.name = name;
    g.width = width;
    g.callback = cb;
    return g;
}

// The linked records of one gauge, as the host sees them; they begin with
// the element index (frame/elements.h). The chain elements lie first, in
// chain order, right after the index; branch elements follow them.
template <int NE, int NM, int NS>
struct GaugeParts {
    ChainIndex head;
    Element elems[NE];
    Element* links[2 * NE];
    MouseRect mouse[NM + 4];
    char text[NS > 0 ? NS : 1][kMaxText + 1];
};
// show() finds eN at the Nth element after the index.
using OneElementParts = GaugeParts<1, 0, 0>;
static_assert(offsetof(OneElementParts, elems) == sizeof(ChainIndex));

// Builds the parts of `decl` in place at `self`, all pointers resolved.
template <int NE, int NM, int NS>
constexpr GaugeParts<NE, NM, NS> link(const GaugeDecl<NE, NM>& decl, GaugeHeader* header,
                                      GaugeParts<NE, NM, NS>* self) {
    GaugeParts<NE, NM, NS> p{};
    p.head.root[0] = &self->elems[0];
    p.head.root[1] = nullptr;
    int chain_next[NE];  // chain index -> element index of the next chain element
    int chain_of[NE];    // element index -> chain index, or -1 for branches
    int n_chain = 0;
    for (int i = 0; i < NE; ++i) {
        chain_next[i] = -1;
        chain_of[i] = -1;
    }
    int chain_elem[NE];
    int slot_of[NE];  // element index -> place in elems: the chain first, then the branches
    for (int i = 0; i < NE; ++i) {
        if (decl.elems[i].parent < 0) {
            chain_of[i] = n_chain;
            slot_of[i] = n_chain;
            chain_elem[n_chain++] = i;
        }
    }
    int n_branch = 0;
    for (int i = 0; i < NE; ++i)
        if (chain_of[i] < 0)
            slot_of[i] = n_chain + n_branch++;
    for (int c = 0; c + 1 < n_chain; ++c)
        chain_next[chain_elem[c]] = chain_elem[c + 1];
    p.head.count = static_cast<std::size_t>(n_chain);
    int link_at = 0;
    int string_at = 0;
    for (int i = 0; i < NE; ++i) {
        Element& e = p.elems[slot_of[i]];
        e = decl.elems[i].e;
        e.gauge = header;
        if (e.kind == kString) {
            e.u.str.text = self->text[string_at++];
        }
        if (chain_of[i] < 0)
            continue;
        int first = link_at;
        if (chain_next[i] >= 0)
            p.links[link_at++] = &self->elems[slot_of[chain_next[i]]];
        for (int j = 0; j < NE; ++j) {
            if (decl.elems[j].parent == chain_of[i])
                p.links[link_at++] = &self->elems[slot_of[j]];
        }
        if (link_at == first)
            continue;  // no children
        p.links[link_at++] = nullptr;
        e.children = &self->links[first];
    }
    int r = 0;
    p.mouse[r] = MouseRect{};
    p.mouse[r].row = kRowParent;
    p.mouse[r].help_id = decl.help_id;
    ++r;
    if (decl.tooltip) {
        p.mouse[r] = MouseRect{};
        p.mouse[r].row = kRowTooltip;
        p.mouse[r].u.tooltip = decl.tooltip;
        ++r;
    }
    for (int i = 0; i < NM; ++i)
        p.mouse[r++] = decl.areas[i].r;
    p.mouse[r] = MouseRect{};
    p.mouse[r++].row = kRowEndParent;
    p.mouse[r] = MouseRect{};
    p.mouse[r].row = kRowEnd;
    return p;
}

template <class Decl, class Parts>
constexpr GaugeHeader make_header(const Decl& decl, Parts* parts) {
    GaugeHeader h{};
    h.version = 0x320;
    h.name = decl.name;
    h.elements = parts->head.root;
    h.query = header_query;
    h.install = header_install;
    h.initialize = header_initialize;
    h.update = header_update;
    h.generate = header_generate;
    h.draw = header_draw;
    h.kill = header_kill;
    h.size_x_mm = decl.width;
    h.mouse = parts->mouse;
    h.callback = decl.callback;
    return h;
}

// Checks made on every declaration.
template <class Decl>
constexpr bool well_formed(const Decl& decl) {
    if (Decl::n_elems < 1 || Decl::n_elems > kMaxElements)
        return false;
    if (decl.elems[0].parent >= 0 || decl.elems[0].e.kind != kStaticImage)
        return false;
    int chain = 0;
    for (int i = 0; i < Decl::n_elems; ++i) {
        const ElementDecl& s = decl.elems[i];
        if (s.parent < 0) {
            ++chain;
        } else if (s.parent >= chain - 1 && i + 1 >= Decl::n_elems) {
            // a branch must hang from an element that has a chain successor
            return false;
        }
        if (s.e.kind == kString && s.e.u.str.char_count > kMaxText)
            return false;
        if (i > 0 && s.e.kind == kStaticImage)
            return false;  // the background is the one static image; the rest are icons
    }
    for (int i = 0; i < Decl::n_elems; ++i) {
        if (decl.elems[i].parent >= chain - 1 && decl.elems[i].parent >= 0)
            return false;
    }
    return true;
}

}  // namespace def
}  // namespace kestrane

#define KESTRANE_PARTS_TYPE(id) \
    ::kestrane::def::GaugeParts<id##_decl.n_elems, id##_decl.n_areas, id##_decl.n_strings()>

// Declares gauge `id` (its header is kestrane::gauges::id).
#define KESTRANE_GAUGE(id, ...)                                                       \
    namespace kestrane::gauges {                                                      \
    namespace {                                                                       \
    using namespace ::kestrane::def;                                                  \
    constexpr auto id##_decl = __VA_ARGS__;                                           \
    static_assert(well_formed(id##_decl), "malformed gauge " #id);                    \
    extern KESTRANE_PARTS_TYPE(id) id##_parts;                                        \
    }                                                                                 \
    constinit GaugeHeader id = make_header(id##_decl, &id##_parts);                   \
    namespace {                                                                       \
    constinit KESTRANE_PARTS_TYPE(id) id##_parts = link(id##_decl, &id, &id##_parts); \
    }                                                                                 \
    }
