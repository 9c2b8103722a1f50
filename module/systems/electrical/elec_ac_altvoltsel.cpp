// kestrane elec_ac_altvoltsel_jm47: alternator voltmeter selector, LH or RH.
// The alternator voltmeter value is made here.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

u32 KCALL select_lh(PixPoint*, u32) {
    return set_switch(ac.elec_alt_volt_sel, 1), 0;
}
u32 KCALL select_rh(PixPoint*, u32) {
    return set_switch(ac.elec_alt_volt_sel, 2), 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const u8 sel = ac.elec_alt_volt_sel;
    const bool online = (sel == 1 && ac.elec_alt_lh_online == 1) || (sel == 2 && ac.elec_alt_rh_online == 1);
    ac.elec_alt_volts = online ? 115 : 0;
    show(g, 1, sel == 1);
    show(g, 2, sel == 2);
}
}  // namespace

KESTRANE_GAUGE(elec_ac_altvoltsel, gauge("kestrane elec_ac_altvoltsel_jm47", 112, update)
                                       .elements(image(26592, 0x4001),            // e0
                                                 icon(30736, 1, 0, 0x40000003),   // e1 LH
                                                 icon(30752, 55, 0, 0x40000003))  // e2 RH
                                       .mouse(click(1, 0, 54, 41, kCursorHand, select_lh),
                                              click(55, 0, 54, 41, kCursorHand, select_rh)))
