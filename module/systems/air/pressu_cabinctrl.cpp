// kestrane pressu_cabinctrl_jm47: cabin pressure controller. Selected cabin
// altitude and rate, barometric scale, and a magnifier over the altitude
// selector and over the barometric scale that shows for a while after each
// touch.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

struct Magnifier {
    u8 request;  // touched since the last cycle
    u8 shown;
    f64 start;  // token 1 when shown
};

ModuleVar tick = token(1);
f32 baro = 29.9f;  // inches of mercury, display only
f32 baro_sprite = 0.0f;
f32 alt_angle = 0.0f;
f32 alt_sprite = 0.0f;
Magnifier alt_magnifier{}, baro_magnifier{};

constexpr f64 kMagnifierTicks = 50.0;

// The barometric setting steps in whole hundredths of an inch.
i32 hundredths(f32 inches) {
    const f64 v = static_cast<f64>(inches) * 100.0;
    return trunc_to<i32>(v < 0.0 ? v - 0.5 : v + 0.5);
}

u32 KCALL alt_down(PixPoint*, u32) {
    if (ac.air_cabin_alt_sel > -1000)
        ac.air_cabin_alt_sel = static_cast<i16>(ac.air_cabin_alt_sel - 100);
    alt_magnifier.request = 1;
    return 0;
}
u32 KCALL alt_up(PixPoint*, u32) {
    if (ac.air_cabin_alt_sel < 10000)
        ac.air_cabin_alt_sel = static_cast<i16>(ac.air_cabin_alt_sel + 100);
    alt_magnifier.request = 1;
    return 0;
}
u32 KCALL rate_down(PixPoint*, u32) {
    if (ac.air_cabin_rate_sel > 50)
        ac.air_cabin_rate_sel = static_cast<i16>(ac.air_cabin_rate_sel - 50);
    return 0;
}
u32 KCALL rate_up(PixPoint*, u32) {
    if (ac.air_cabin_rate_sel < 2000)
        ac.air_cabin_rate_sel = static_cast<i16>(ac.air_cabin_rate_sel + 50);
    return 0;
}
u32 KCALL baro_down(PixPoint*, u32) {
    const i32 h = hundredths(baro);
    if (h >= 2791)
        baro = trunc_to<f32>((h - 1) / 100.0);
    baro_magnifier.request = 1;
    return 0;
}
u32 KCALL baro_up(PixPoint*, u32) {
    const i32 h = hundredths(baro);
    if (h < 3194)
        baro = trunc_to<f32>((h + 1) / 100.0);
    baro_magnifier.request = 1;
    return 0;
}
u32 KCALL alt_touch(PixPoint*, u32) {
    return alt_magnifier.request = 1, 0;
}
u32 KCALL baro_touch(PixPoint*, u32) {
    return baro_magnifier.request = 1, 0;
}

// A touch shows the magnifier and restarts its time; it hides 50 ticks after
// the last touch.
void magnifier_cycle(GaugeHeader* g, int n, Magnifier& m, f64 now) {
    if (m.request == 1) {
        if (m.shown == 0) {
            show(g, n, true);
            m.start = now;
            m.shown = 1;
            m.request = 0;
        } else {
            m.shown = 0;  // the next cycle shows it afresh
        }
    } else if (m.shown == 1 && now >= m.start + kMagnifierTicks) {
        show(g, n, false);
        m.shown = 0;
    }
}

void update_cycle(GaugeHeader* g) {
    const f64 now = host::read(tick);
    magnifier_cycle(g, 4, alt_magnifier, now);
    magnifier_cycle(g, 5, baro_magnifier, now);

    baro_sprite = trunc_to<f32>((static_cast<f64>(baro) - 29.9) * 20.0 * 4.25 - 2.0);

    const f64 sel = ac.air_cabin_alt_sel;
    const f64 angle = sel * 0.01 + sel * 0.01 + 210.0;
    alt_angle = trunc_to<f32>(angle);
    if (angle >= 170.0 && angle <= 390.0)
        alt_sprite = trunc_to<f32>((angle - 210.0) * 1.4372);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        update_cycle(g);
}

f64 KCALL baro_rotation(Element*) {
    return baro_sprite;
}
f64 KCALL alt_rotation(Element*) {
    return alt_sprite;
}
f64 KCALL none(Element*) {
    return 0.0;
}
f64 KCALL alt_sel_needle(Element*) {
    return clamp_back(ac.air_cabin_alt_sel, -1000.0, 10000.0);
}
f64 KCALL rate_sel_needle(Element*) {
    return clamp_back(ac.air_cabin_rate_sel, 50.0, 2000.0);
}

// The selectors' scales, about their pivots (158, 100) and (46, 167).
NeedlePoint alt_sel_scale[] = {
    {108, 110, -1000, 0}, {128, 60, 2000, 0}, {188, 60, 6000, 0}, {208, 110, 10000, 0}};
NeedlePoint rate_sel_scale[] = {{6, 167, 50, 0}, {46, 127, 1000, 0}, {86, 167, 2000, 0}};
}  // namespace

// clang-format off
KESTRANE_GAUGE(pressu_cabinctrl,
    gauge("kestrane pressu_cabinctrl_jm47", 311, update)
        .elements(image(12400, 0x4001),                                                          // e0
                  sprite(12560, 209, 53, 0, 0, 0x4003, 0, 0, none, none, baro_rotation),         // e1 barometric scale
                  sprite(12416, 131, 25, 0, 0, 0x4003, 0, 0, none, none, alt_rotation),          // e2 altitude selector
                  needle(12368, 158, 100, 4, 4, 0x4003, alt_sel_needle, alt_sel_scale),          // e3 selected altitude
                  sprite(12544, 109, 3, 0, 0, 0x40004003, 0, 0, none, none, alt_rotation),       // e4 altitude magnifier
                  sprite(12800, 201, 27, 0, 0, 0x40004003, 0, 0, none, none, baro_rotation),     // e5 barometric magnifier
                  needle(12576, 46, 167, 4, 4, 0x4003, rate_sel_needle, rate_sel_scale))         // e6 selected rate
        .mouse(repeat(227, 131, 42, 76, kCursorDown, alt_down),
               repeat(269, 131, 42, 76, kCursorUp, alt_up),
               repeat(4, 131, 42, 76, kCursorDown, rate_down),
               repeat(46, 131, 42, 76, kCursorUp, rate_up),
               repeat(239, 79, 31, 50, kCursorDown, baro_down),
               repeat(270, 79, 31, 50, kCursorUp, baro_up),
               click(118, 0, 80, 80, kCursorHand, alt_touch),
               click(207, 49, 31, 50, kCursorHand, baro_touch)))
// clang-format on
