// kestrane elec_ac_gndpwr_jm47: AC ground power switch. Ground power feeds
// the AC lines while the switch is on and the unit is connected.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

u32 KCALL to_on(PixPoint*, u32) {
    set_switch(ac.elec_ac_gndpwr_sw, 1);
    return 0;
}
u32 KCALL to_centre(PixPoint*, u32) {
    set_switch(ac.elec_ac_gndpwr_sw, 0);
    return 0;
}
u32 KCALL to_off(PixPoint*, u32) {
    set_switch(ac.elec_ac_gndpwr_sw, 2);
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    ac.elec_ac_gndpwr_on = ac.elec_ac_gndpwr_sw == 1 && ac.elec_gndpwr_connected == 1;
    show(g, 1, ac.elec_ac_gndpwr_sw == 1);
    show(g, 2, ac.elec_ac_gndpwr_sw == 0);
    show(g, 3, ac.elec_ac_gndpwr_sw == 2);
}
}  // namespace

KESTRANE_GAUGE(elec_ac_gndpwr, gauge("kestrane elec_ac_gndpwr_jm47", 118, update)
                                   .elements(image(26512, 0x4001),                  // e0 background
                                             icon(art(32, 1), 78, 12, 0x40000003),  // e1 on
                                             icon(art(32, 2), 39, 12, 0x40000003),  // e2 centre
                                             icon(art(32, 3), 0, 12, 0x40000003))   // e3 off
                                   .mouse(click(78, 12, 39, 47, kCursorHand, to_on),
                                          click(39, 12, 39, 47, kCursorHand, to_centre),
                                          click(0, 12, 39, 47, kCursorHand, to_off)))
