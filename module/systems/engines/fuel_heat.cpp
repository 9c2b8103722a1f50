// kestrane fuel_heat_jm47: fuel heat switches and the four fuel temperature
// lights with their test push-buttons. The heat switches are spring-loaded
// left and right and latch in the lower position; nothing else reads them.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

// 0 centre, 100 latched lower, 1..12 sprung right, -12..-1 sprung left.
constexpr i8 kCentre = 0;
constexpr i8 kLatched = 100;
i8& heat_lh = ac.fuel_heat_sw_lh;
i8& heat_rh = ac.fuel_heat_sw_rh;

void spring_right(i8& sw) {
    if (sw == kCentre || sw == kLatched) {
        sw = 10;
        sound::click();
    } else if (sw >= 1 && sw <= 10) {
        sw = static_cast<i8>(sw + 2);
    }
}
void spring_left(i8& sw) {
    if (sw == kCentre || sw == kLatched) {
        sw = -10;
        sound::click();
    } else if (sw >= -10 && sw <= -1) {
        sw = static_cast<i8>(sw - 2);
    }
}
void set_heat(i8& sw, i8 position) {
    if (sw == position)
        return;
    sw = position;
    sound::click();
}
void spring_back(i8& sw) {
    if (sw == kCentre || sw == kLatched)
        return;
    sw = static_cast<i8>(sw < 0 ? sw + 1 : sw - 1);
}

// Test push-buttons: on, or off again (also once acknowledged).
void toggle_test(u8& test) {
    test = test == 0 ? 1 : 0;
}

u32 KCALL lh_right(PixPoint*, u32) {
    return spring_right(heat_lh), 0;
}
u32 KCALL lh_left(PixPoint*, u32) {
    return spring_left(heat_lh), 0;
}
u32 KCALL lh_centre(PixPoint*, u32) {
    return set_heat(heat_lh, kCentre), 0;
}
u32 KCALL lh_latch(PixPoint*, u32) {
    return set_heat(heat_lh, kLatched), 0;
}
u32 KCALL rh_right(PixPoint*, u32) {
    return spring_right(heat_rh), 0;
}
u32 KCALL rh_left(PixPoint*, u32) {
    return spring_left(heat_rh), 0;
}
u32 KCALL rh_centre(PixPoint*, u32) {
    return set_heat(heat_rh, kCentre), 0;
}
u32 KCALL rh_latch(PixPoint*, u32) {
    return set_heat(heat_rh, kLatched), 0;
}
u32 KCALL test_hi_lh(PixPoint*, u32) {
    return toggle_test(ac.fuel_temp_test_hi_lh), 0;
}
u32 KCALL test_lo_lh(PixPoint*, u32) {
    return toggle_test(ac.fuel_temp_test_lo_lh), 0;
}
u32 KCALL test_hi_rh(PixPoint*, u32) {
    return toggle_test(ac.fuel_temp_test_hi_rh), 0;
}
u32 KCALL test_lo_rh(PixPoint*, u32) {
    return toggle_test(ac.fuel_temp_test_lo_rh), 0;
}

// Images of one switch from `first`: latched, centre, left, right.
void show_switch(GaugeHeader* g, int first, i8 sw) {
    show(g, first, sw == kLatched);
    show(g, first + 1, sw == kCentre);
    show(g, first + 2, sw < 0);
    show(g, first + 3, sw > 0 && sw != kLatched);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    spring_back(heat_lh);
    spring_back(heat_rh);
    show_switch(g, 1, heat_lh);
    show_switch(g, 5, heat_rh);

    // cold below 3 C, hot from 53 C
    const bool ess = ac.elec_ess_bus == 1;
    show(g, 9, ess && (ac.fuel_temp_lh <= 3.0f || ac.fuel_temp_test_lo_lh != 0));
    show(g, 10, ess && (ac.fuel_temp_lh >= 53.0f || ac.fuel_temp_test_hi_lh != 0));
    show(g, 11, ess && (ac.fuel_temp_rh <= 3.0f || ac.fuel_temp_test_lo_rh != 0));
    show(g, 12, ess && (ac.fuel_temp_rh >= 53.0f || ac.fuel_temp_test_hi_rh != 0));
}
}  // namespace

KESTRANE_GAUGE(
    fuel_heat,
    gauge("kestrane fuel_heat_jm47", 289, update)
        .elements(image(13568, 0x4001),              // e0 background
                  icon(12848, 70, 50, 0x40000003),   // e1 left switch latched lower
                  icon(12816, 70, 44, 0x40000003),   // e2 left switch centre
                  icon(13168, 62, 35, 0x40000003),   // e3 left switch sprung left
                  icon(13184, 73, 35, 0x40000003),   // e4 left switch sprung right
                  icon(12848, 211, 50, 0x40000003),  // e5 right switch latched lower
                  icon(12816, 211, 44, 0x40000003),  // e6 right switch centre
                  icon(13168, 203, 35, 0x40000003),  // e7 right switch sprung left
                  icon(13184, 214, 35, 0x40000003),  // e8 right switch sprung right
                  icon(4608, 92, 116, 0x40000003),   // e9 left low temperature
                  icon(4608, 44, 116, 0x40000003),   // e10 left high temperature
                  icon(4608, 231, 116, 0x40000003),  // e11 right low temperature
                  icon(4608, 183, 116, 0x40000003))  // e12 right high temperature
        .mouse(repeat(75, 14, 37, 26, kCursorUp, lh_right), repeat(38, 14, 37, 26, kCursorDown, lh_left),
               click(57, 40, 37, 23, kCursorHand, lh_centre), click(57, 63, 37, 26, kCursorUp, lh_latch),
               repeat(216, 14, 37, 26, kCursorUp, rh_right), repeat(179, 14, 37, 26, kCursorDown, rh_left),
               click(198, 40, 37, 23, kCursorHand, rh_centre), click(198, 63, 37, 26, kCursorUp, rh_latch),
               click(35, 141, 33, 33, kCursorHand, test_hi_lh),
               click(84, 141, 33, 33, kCursorHand, test_lo_lh),
               click(174, 141, 33, 33, kCursorHand, test_hi_rh),
               click(223, 141, 33, 33, kCursorHand, test_lo_rh)))
