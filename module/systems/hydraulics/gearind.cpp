// kestrane gearind_jm47: gear position lights of the three legs (left,
// middle, right) on the essential bus, and the gear panel opened while the
// gear nears either end of its travel. The unlocked and down-and-locked
// lights have a second image set, used with the navigation lights off.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

constexpr u32 kOpenWindow = 0x103CB;
constexpr u32 kGearPanel = 10030;

ModuleVar leg_1 = token(333), leg_2 = token(332), leg_3 = token(334);

// Chain numbers of the lights of leg 0 (left); the other legs follow.
constexpr int kUnlocked = 2, kTransit = 5, kLocked = 8;
constexpr int kUnlockedNavOff = 11, kLockedNavOff = 14;

void leg_lights(GaugeHeader* g, int leg, f64 pos, bool nav) {
    const bool ess = ac.elec_ess_bus == 1;
    const bool moving_lit = ess && ac.gear_frozen == 0;
    const bool unlocked = moving_lit && pos > 500.0;
    const bool transit = moving_lit && pos > 4500.0 && pos < 11700.0;
    const bool locked = ess && pos >= 11700.0;
    show(g, kUnlocked + leg, nav && unlocked);
    show(g, kUnlockedNavOff + leg, !nav && unlocked);
    show(g, kTransit + leg, transit);
    show(g, kLocked + leg, nav && locked);
    show(g, kLockedNavOff + leg, !nav && locked);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 l1 = host::read(leg_1);
    const bool nav = ac.light_nav_sw != 0;
    leg_lights(g, 0, l1, nav);
    leg_lights(g, 1, host::read(leg_2), nav);
    leg_lights(g, 2, host::read(leg_3), nav);
    show(g, 1, ac.light_panel_night != 0);
    if ((l1 > 0.0 && l1 < 1000.0) || (l1 > 15000.0 && l1 < 16000.0))
        host::send_event(kOpenWindow, kGearPanel);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(gearind,
    gauge("kestrane gearind_jm47", 168, update)
        .help(0xAB31)
        .elements(image(43024, 0x4001),                // e0 background
                  icon(43232, 0, 0, 0x40004003),       // e1 night overlay
                  icon(43248, 14, 20, 0x40000003),     // e2 left unlocked
                  icon(43248, 70, 20, 0x40000003),     // e3 middle unlocked
                  icon(43248, 126, 20, 0x40000003),    // e4 right unlocked
                  icon(43264, 14, 60, 0x40000003),     // e5 left in transit
                  icon(43264, 70, 60, 0x40000003),     // e6 middle in transit
                  icon(43264, 126, 60, 0x40000003),    // e7 right in transit
                  icon(43280, 14, 100, 0x40000003),    // e8 left down and locked
                  icon(43280, 70, 100, 0x40000003),    // e9 middle down and locked
                  icon(43280, 126, 100, 0x40000003),   // e10 right down and locked
                  icon(43296, 14, 20, 0x40000003),     // e11 left unlocked, nav lights off
                  icon(43296, 70, 20, 0x40000003),     // e12 middle unlocked, nav lights off
                  icon(43296, 126, 20, 0x40000003),    // e13 right unlocked, nav lights off
                  icon(43312, 14, 100, 0x40000003),    // e14 left down and locked, nav lights off
                  icon(43312, 70, 100, 0x40000003),    // e15 middle down and locked, nav lights off
                  icon(43312, 126, 100, 0x40000003)))  // e16 right down and locked, nav lights off
// clang-format on
