// kestrane winheatflood_jm47: windshield-heat panel. A two-position switch for
// the panel's light, which the host's light follows while the generator bus is
// powered, and two ganged three-position windshield-heat levers (position only).
#include "frame/follow.h"

namespace {
using namespace kestrane;

ModuleVar panel_light = token(621);

template <u8 Position>
u32 KCALL light_sw(PixPoint*, u32) {
    return set_switch(ac.light_flood_sw, Position), 0;
}

// Levers: 1 up, 0 centre, 2 down.
template <u8 Position>
u32 KCALL heat_lever(PixPoint*, u32) {
    return set_switch(ac.ice_window_heat_sw, Position), 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool light = ac.light_flood_sw == 1;
    show(g, 1, !light);
    show(g, 2, light);
    const u8 lever = ac.ice_window_heat_sw;
    for (int side = 0; side < 2; ++side) {
        show(g, 3 + 3 * side, lever == 1);
        show(g, 4 + 3 * side, lever == 0);
        show(g, 5 + 3 * side, lever == 2);
    }
    follow_toggle(panel_light, light && ac.elec_gen_bus == 1, 66378);
}
}  // namespace

KESTRANE_GAUGE(winheatflood, gauge("kestrane winheatflood_jm47", 140, update)
                                 .elements(image(41440, 0x4001),              // e0 background
                                           icon(10080, 100, 21, 0x40000003),  // e1 light off
                                           icon(10048, 100, 21, 0x40000003),  // e2 light on
                                           icon(10064, 15, 10, 0x40000003),   // e3 left lever up
                                           icon(10080, 15, 22, 0x40000003),   // e4 left lever centre
                                           icon(10048, 15, 21, 0x40000003),   // e5 left lever down
                                           icon(10064, 49, 10, 0x40000003),   // e6 right lever up
                                           icon(10080, 49, 22, 0x40000003),   // e7 right lever centre
                                           icon(10048, 49, 21, 0x40000003))   // e8 right lever down
                                 .mouse(click(89, 25, 32, 21, kCursorUp, light_sw<1>),
                                        click(89, 4, 32, 21, kCursorDown, light_sw<0>),
                                        click(5, 0, 32, 16, kCursorUp, heat_lever<1>),
                                        click(38, 0, 32, 16, kCursorUp, heat_lever<1>),
                                        click(5, 16, 32, 16, kCursorDown, heat_lever<0>),
                                        click(38, 16, 32, 16, kCursorDown, heat_lever<0>),
                                        click(5, 32, 32, 16, kCursorUp, heat_lever<2>),
                                        click(38, 32, 32, 16, kCursorUp, heat_lever<2>)))
