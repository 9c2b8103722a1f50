// kestrane elec_tr_sw_lh_jm47: guarded TR LH switch. TR LH works while its
// switch is on and the essential bus is powered; with alternator LH on its
// line it keeps the essential bus alive in return.
#include "elec_b_panel.h"

namespace {
using namespace kestrane;

u32 KCALL upper(PixPoint*, u32) {
    guard_upper(ac.elec_tr_lh_guard, ac.elec_tr_lh_sw);
    return 0;
}
u32 KCALL lower(PixPoint*, u32) {
    guard_lower(ac.elec_tr_lh_guard, ac.elec_tr_lh_sw);
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    ac.elec_tr_lh_online = ac.elec_tr_lh_sw == 1 && ac.elec_ess_bus == 1;
    elec_b::show_guarded(g, 1, 2, 3, 4, ac.elec_tr_lh_guard, ac.elec_tr_lh_sw);
}
}  // namespace

KESTRANE_GAUGE(elec_tr_sw_lh, gauge("kestrane elec_tr_sw_lh_jm47", 96, update)
                                  .elements(image(26528, 0x4001),             // e0
                                            icon(30224, 37, 0, 0x40000003),   // e1 on, guard closed
                                            icon(30240, 37, 0, 0x40000003),   // e2 guard open
                                            icon(30256, 37, 43, 0x40000003),  // e3 on
                                            icon(30272, 37, 43, 0x40000003))  // e4 off
                                  .mouse(click(37, 0, 35, 43, kCursorHand, upper),
                                         click(37, 43, 35, 43, kCursorDown, lower)))
