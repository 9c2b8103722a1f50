// kestrane elec_bus_alt_jm47: TR line diagram. TR lines 1 and 2 and their
// meter values are made here.
#include "elec_b_panel.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool lh = elec_b::lh_on_line();
    const bool rh = elec_b::rh_on_line();
    const bool gnd = ac.elec_ac_gndpwr_on == 1;
    // Each alternator feeds its own line through its own TR and the
    // opposite line directly.
    const bool line1 = gnd || (lh && ac.elec_tr_lh_online == 1) || rh;
    const bool line2 = gnd || (rh && ac.elec_tr_rh_online == 1) || lh;
    ac.elec_line1_volts = line1 ? 28 : 0;
    ac.elec_line1_amps = line1 ? (ac.elec_tadg_on == 1 ? 170 : 120) : 0;
    ac.elec_line2_volts = line2 ? 28 : 0;
    ac.elec_line2_amps = line2 ? 90 : 0;

    show(g, 1, line1);
    show(g, 2, ac.elec_dc_bus_1 == 1);
    show(g, 3, line2);
    show(g, 4, ac.elec_dc_bus_2 == 1);
    show(g, 5, line1);
    show(g, 6, ac.elec_ess_bus == 1);
}
}  // namespace

KESTRANE_GAUGE(elec_bus_alt,
               gauge("kestrane elec_bus_alt_jm47", 347, update)
                   .elements(image(26576, 0x4001),               // e0
                             icon(30608, 20, 12, 0x40000003),    // e1 TR line 1
                             icon(30624, 20, 70, 0x40000003),    // e2 DC bus 1
                             icon(30640, 250, 12, 0x40000003),   // e3 TR line 2
                             icon(30656, 250, 70, 0x40000003),   // e4 DC bus 2
                             icon(30672, 120, 40, 0x40000003),   // e5 TR line 1, to the essential bus
                             icon(30688, 150, 70, 0x40000003)))  // e6 essential bus
