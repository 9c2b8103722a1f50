// kestrane emerg_lev_jm47: emergency gear extension lever, emergency flap
// selector under its cover, and the flap lock: with the selector neutral and
// the cover open, or the green circuit lost, the flap handle is nudged to
// the detent matching the real flap angle so that the flaps stay put.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;
using namespace kestrane::hyd;

ModuleVar flap_handle = token(328), flap_angle = token(907);

inline constexpr u32 kEmergGearDown = 0x10220;
inline constexpr u32 kEmergFlapsUp = 0x1003B;
inline constexpr u32 kEmergFlapsDown = 0x10043;
inline constexpr u32 kFlapsIncr = 0x100DE;
inline constexpr u32 kFlapsDecr = 0x100DF;
inline constexpr u16 kRedUsable = 950;  // red above this works the emergency events

u32 KCALL gear_stow(PixPoint*, u32) {
    return set_switch(ac.gear_emerg_lever, 0), 0;
}
u32 KCALL gear_pull(PixPoint*, u32) {
    if (set_switch(ac.gear_emerg_lever, 1) && ac.hyd_red_press > kRedUsable)
        host::send_event(kEmergGearDown);
    return 0;
}

u32 KCALL cover_flip(PixPoint*, u32) {
    ac.flaps_emerg_cover = ac.flaps_emerg_cover ? 0 : 1;
    return 0;
}
u32 KCALL flaps_neutral(PixPoint*, u32) {
    if (ac.flaps_emerg_cover == 0)
        ac.flaps_emerg_cover = 1;
    else
        ac.flaps_emerg_sel = 0;
    return 0;
}
void flaps_select(u8 position, u32 event) {
    if (ac.flaps_emerg_cover != 1 || ac.flaps_emerg_sel != 0)
        return;
    ac.flaps_emerg_sel = position;
    if (ac.hyd_red_press > kRedUsable)
        host::send_event(event);
}
u32 KCALL flaps_up(PixPoint*, u32) {
    return flaps_select(1, kEmergFlapsUp), 0;
}
u32 KCALL flaps_down(PixPoint*, u32) {
    return flaps_select(2, kEmergFlapsDown), 0;
}

// One band of flap angles: the handle detent it holds (both bounds
// inclusive) and the event sent while the handle is elsewhere.
struct LockBand {
    f64 lo, hi;
    bool lo_open, hi_closed;  // lo < a instead of lo <= a; a <= hi instead of a < hi
    u16 detent_lo, detent_hi;
    u32 event;
};

// Each detent angle (5, 10, 20) belongs to the next detent down the travel.
// clang-format off
constexpr LockBand kBands[] = {
    {3, 5, false, false, 1820, 1821, kFlapsIncr},
    {5, 8, true, false, 1820, 1821, kFlapsDecr},
    {5, 5, false, true, 6553, 6554, kFlapsIncr},
    {8, 10, false, false, 6553, 6554, kFlapsIncr},
    {10, 15, true, false, 6553, 6554, kFlapsDecr},
    {10, 10, false, true, 9830, 9831, kFlapsIncr},
    {15, 20, false, false, 9830, 9831, kFlapsIncr},
    {20, 26, true, false, 9830, 9831, kFlapsDecr},
    {20, 20, false, true, 13107, 13108, kFlapsIncr},
    {26, 32, false, false, 13107, 13108, kFlapsIncr},
    {32, 39, true, false, 13107, 13108, kFlapsDecr},
};
// clang-format on

bool in_band(const LockBand& b, f64 a) {
    const bool above = b.lo_open ? a > b.lo : a >= b.lo;
    const bool below = b.hi_closed ? a <= b.hi : a < b.hi;
    return above && below;
}

void flap_lock() {
    const f64 a = host::read(flap_angle);
    const f64 h = host::read(flap_handle);
    if (a >= 0 && a < 3) {
        if (h > 0)
            host::send_event(kFlapsDecr);
        return;
    }
    if (a >= 39 && a < 45) {
        if (h < 16384)
            host::send_event(kFlapsIncr);
        return;
    }
    for (const LockBand& b : kBands) {
        if (!in_band(b, a))
            continue;
        if (h < b.detent_lo || h > b.detent_hi)
            host::send_event(b.event);
        return;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.flaps_emerg_sel == 0 && (ac.flaps_emerg_cover == 1 || ac.hyd_green_press < kGreenNormal))
        flap_lock();

    show(g, 1, ac.gear_emerg_lever == 0);
    show(g, 2, ac.gear_emerg_lever == 1);
    show(g, 3, ac.flaps_emerg_sel == 1);
    show(g, 4, ac.flaps_emerg_sel == 0);
    show(g, 5, ac.flaps_emerg_sel == 2);
    show(g, 6, ac.flaps_emerg_cover == 1);
    show(g, 7, ac.flaps_emerg_cover == 0);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(emerg_lev,
    gauge("kestrane emerg_lev_jm47", 339, update)
        .elements(image(40832, 0x4001),               // e0 background
                  icon(46544, 20, 103, 0x40000003),   // e1 gear lever stowed
                  icon(46560, 20, 273, 0x40000003),   // e2 gear lever pulled
                  icon(46576, 116, 88, 0x40000003),   // e3 flap selector up
                  icon(46592, 116, 220, 0x40000003),  // e4 flap selector neutral
                  icon(46608, 116, 302, 0x40000003),  // e5 flap selector down
                  icon(46624, 116, 0, 0x40000003),    // e6 cover open
                  icon(46640, 116, 88, 0x40000003))   // e7 cover closed
        .mouse(click(20, 103, 77, 125, kCursorHand, gear_stow),
               click(20, 273, 77, 91, kCursorHand, gear_pull),
               click(116, 0, 218, 68, kCursorHand, cover_flip),
               click(185, 220, 218, 68, kCursorHand, cover_flip),
               click(116, 220, 69, 68, kCursorHand, flaps_neutral),
               click(116, 88, 69, 114, kCursorHand, flaps_up),
               click(116, 302, 69, 62, kCursorHand, flaps_down)))
// clang-format on
