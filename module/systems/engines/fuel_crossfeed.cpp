// kestrane fuel_crossfeed_jm47: crossfeed valve switch and its position
// indicator. The pump panels decide what the open valve feeds.
#include "frame/gauge.h"
#include "systems/engines/fuel_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::fuel;

u32 KCALL open_valve(PixPoint*, u32) {
    return set_switch(ac.fuel_crossfeed, 1), 0;
}
u32 KCALL shut_valve(PixPoint*, u32) {
    return set_switch(ac.fuel_crossfeed, 0), 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool open = ac.fuel_crossfeed == 1;
    const bool ess = ac.elec_ess_bus == 1;
    show_day_night(g, 1, 5, !open);
    show_day_night(g, 2, 6, open);
    show_day_night(g, 3, 7, ess && !open);
    show_day_night(g, 4, 8, ess && open);
}
}  // namespace

KESTRANE_GAUGE(fuel_crossfeed, gauge("kestrane fuel_crossfeed_jm47", 54, update)
                                   .elements(image(27344, 0x4001),             // e0 background
                                             icon(1040, 22, 47, 0x40000003),   // e1 switch shut
                                             icon(1104, 22, 28, 0x40000003),   // e2 switch open
                                             icon(9312, 13, 100, 0x40000003),  // e3 indicator shut
                                             icon(9264, 13, 100, 0x40000003),  // e4 indicator open
                                             icon(9728, 22, 47, 0x40000003),   // e5 switch shut, night
                                             icon(9584, 22, 28, 0x40000003),   // e6 switch open, night
                                             icon(9520, 13, 100, 0x40000003),  // e7 indicator shut, night
                                             icon(9280, 13, 100, 0x40000003))  // e8 indicator open, night
                                   .mouse(click(5, 23, 45, 25, kCursorUp, open_valve),
                                          click(5, 48, 45, 25, kCursorDown, shut_valve)))
