// kestrane elec_tr_sw_lh_jm47 and elec_tr_sw_rh_jm47: guarded TR LH and TR RH
// switches. A TR works while its switch is on and the essential bus is
// powered; TR LH, with alternator LH on its line, keeps the essential bus
// alive in return.
#include "elec_b_panel.h"

namespace {
using namespace kestrane;

struct TrSwitch {
    u8& sw;
    u8& guard;
    u8& online;
};

constexpr TrSwitch kLh{.sw = ac.elec_tr_lh_sw, .guard = ac.elec_tr_lh_guard, .online = ac.elec_tr_lh_online};
constexpr TrSwitch kRh{.sw = ac.elec_tr_rh_sw, .guard = ac.elec_tr_rh_guard, .online = ac.elec_tr_rh_online};

template <const TrSwitch& S>
u32 KCALL upper(PixPoint*, u32) {
    guard_upper(S.guard, S.sw);
    return 0;
}
template <const TrSwitch& S>
u32 KCALL lower(PixPoint*, u32) {
    guard_lower(S.guard, S.sw);
    return 0;
}

template <const TrSwitch& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    S.online = S.sw == 1 && ac.elec_ess_bus == 1;
    elec_b::show_guarded(g, 1, 2, 3, 4, S.guard, S.sw);
}
}  // namespace

KESTRANE_GAUGE(elec_tr_sw_lh, gauge("kestrane elec_tr_sw_lh_jm47", 96, update<kLh>)
                                  .elements(image(26528, 0x4001),             // e0
                                            icon(30224, 37, 0, 0x40000003),   // e1 on, guard closed
                                            icon(30240, 37, 0, 0x40000003),   // e2 guard open
                                            icon(30256, 37, 43, 0x40000003),  // e3 on
                                            icon(30272, 37, 43, 0x40000003))  // e4 off
                                  .mouse(click(37, 0, 35, 43, kCursorHand, upper<kLh>),
                                         click(37, 43, 35, 43, kCursorDown, lower<kLh>)))

KESTRANE_GAUGE(elec_tr_sw_rh, gauge("kestrane elec_tr_sw_rh_jm47", 33, update<kRh>)
                                  .elements(image(26544, 0x4001),            // e0
                                            icon(30352, 0, 0, 0x40000003),   // e1 on, guard closed
                                            icon(30368, 0, 0, 0x40000003),   // e2 guard open
                                            icon(30384, 0, 43, 0x40000003),  // e3 on
                                            icon(30400, 0, 43, 0x40000003))  // e4 off
                                  .mouse(click(0, 0, 33, 43, kCursorHand, upper<kRh>),
                                         click(0, 43, 33, 43, kCursorDown, lower<kRh>)))
