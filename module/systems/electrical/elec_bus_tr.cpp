// kestrane elec_bus_tr_jm47: TR bus diagram. Lamps only.
#include "elec_b_panel.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool lh = elec_b::lh_on_line();
    const bool rh = elec_b::rh_on_line();
    const bool ess = ac.elec_ess_bus == 1;
    const bool tr_lh = ac.elec_tr_lh_online == 1;
    const bool tr_rh = ac.elec_tr_rh_online == 1;
    show(g, 1, ess && lh);
    show(g, 2, ess && rh);
    show(g, 3, tr_lh);
    show(g, 4, tr_rh);
    show(g, 5, ess && ac.elec_ac_gndpwr_on == 1);
    // Cross feeds: each alternator line reaches the other side when that
    // side's own alternator and TR do not carry it; on ground power, the
    // side whose TR is down.
    if (ac.elec_ac_gndpwr_on == 1) {
        show(g, 6, !tr_lh);
        show(g, 7, !tr_rh);
    } else {
        show(g, 6, rh && !(lh && tr_lh));
        show(g, 7, lh && !(rh && tr_rh));
    }
}
}  // namespace

KESTRANE_GAUGE(elec_bus_tr, gauge("kestrane elec_bus_tr_jm47", 294, update)
                                .elements(image(26560, 0x4001),               // e0
                                          icon(30480, 20, 10, 0x40000003),    // e1 alternator LH line
                                          icon(30496, 214, 10, 0x40000003),   // e2 alternator RH line
                                          icon(30512, 40, 60, 0x40000003),    // e3 TR LH working
                                          icon(30528, 214, 60, 0x40000003),   // e4 TR RH working
                                          icon(30544, 127, 10, 0x40000003),   // e5 AC ground power
                                          icon(30560, 90, 35, 0x40000003),    // e6 cross feed to the LH side
                                          icon(30576, 160, 35, 0x40000003)))  // e7 cross feed to the RH side
