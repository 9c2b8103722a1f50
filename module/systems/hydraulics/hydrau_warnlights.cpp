// kestrane hydrau_warnlights_jm47: reservoir level-low lights of the green
// and blue circuits and the two panel lights above them, on the essential
// bus. A click on a light lights it, or puts it out whatever its state.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;
using namespace kestrane::hyd;

constexpr u16 kLevelLow = 20;

void flip(u8& light) {
    light = light == 0 ? 1 : 0;
}

u32 KCALL light_1(PixPoint*, u32) {
    return flip(ac.hyd_warn_light_1), 0;
}
u32 KCALL light_2(PixPoint*, u32) {
    return flip(ac.hyd_warn_light_2), 0;
}
u32 KCALL light_3(PixPoint*, u32) {
    return flip(ac.hyd_warn_light_3), 0;
}
u32 KCALL light_4(PixPoint*, u32) {
    return flip(ac.hyd_warn_light_4), 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool ess = ess_bus();
    const bool green_low = ess && (ac.hyd_green_level < kLevelLow || ac.hyd_warn_light_1 != 0);
    const bool blue_low = ess && (ac.hyd_blue_level < kLevelLow || ac.hyd_warn_light_2 != 0);
    ac.hyd_green_level_low = green_low;
    ac.hyd_blue_level_low = blue_low;
    show(g, 1, green_low);
    show(g, 2, blue_low);
    show(g, 3, ess && ac.hyd_warn_light_3 == 1);
    show(g, 4, ess && ac.hyd_warn_light_4 == 1);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(hydrau_warnlights,
    gauge("kestrane hydrau_warnlights_jm47", 190, update)
        .elements(image(26784, 0x4001),                  // e0 background
                  icon(32272, 47, 136, 0x40000003),      // e1 green level low
                  icon(32288, 118, 136, 0x40000003),     // e2 blue level low
                  icon(32304, 33, 47, 0x40000003),       // e3 panel light 3
                  icon(32320, 133, 47, 0x40000003))      // e4 panel light 4
        .mouse(click(47, 136, 24, 24, kCursorHand, light_1),
               click(118, 136, 24, 24, kCursorHand, light_2),
               click(33, 47, 24, 24, kCursorHand, light_3),
               click(133, 47, 24, 24, kCursorHand, light_4)))
// clang-format on
