// kestrane elec_tr_sw_rh_jm47: guarded TR RH switch. TR RH works while its
// switch is on and the essential bus is powered.
#include "elec_b_panel.h"

namespace {
using namespace kestrane;

u32 KCALL upper(PixPoint*, u32) {
    guard_upper(ac.elec_tr_rh_guard, ac.elec_tr_rh_sw);
    return 0;
}
u32 KCALL lower(PixPoint*, u32) {
    guard_lower(ac.elec_tr_rh_guard, ac.elec_tr_rh_sw);
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    ac.elec_tr_rh_online = ac.elec_tr_rh_sw == 1 && ac.elec_ess_bus == 1;
    elec_b::show_guarded(g, 1, 2, 3, 4, ac.elec_tr_rh_guard, ac.elec_tr_rh_sw);
}
}  // namespace

KESTRANE_GAUGE(elec_tr_sw_rh,
               gauge("kestrane elec_tr_sw_rh_jm47", 33, update)
                   .elements(image(26544, 0x4001),            // e0
                             icon(30352, 0, 0, 0x40000003),   // e1 on, guard closed
                             icon(30368, 0, 0, 0x40000003),   // e2 guard open
                             icon(30384, 0, 43, 0x40000003),  // e3 on
                             icon(30400, 0, 43, 0x40000003))  // e4 off
                   .mouse(click(0, 0, 33, 43, kCursorHand, upper), click(0, 43, 33, 43, kCursorDown, lower)))
