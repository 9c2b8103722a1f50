// kestrane up2_sw_jm47: two switches of the up2 panel. The host's up2 state
// (token 10) follows the first while the 26 V AC bus or the essential bus is
// powered.
#include "frame/follow.h"

namespace {
using namespace kestrane;

ModuleVar up2_state = token(10);

template <u8& Switch, u8 Position>
u32 KCALL up2_sw(PixPoint*, u32) {
    return set_switch(Switch, Position), 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool sw1 = ac.light_up2_sw1 == 1;
    show(g, 1, sw1);
    show(g, 2, !sw1);
    show(g, 3, ac.light_up2_sw2 == 1);
    show(g, 4, ac.light_up2_sw2 != 1);
    const bool powered = ac.elec_ac_26v_bus == 1 || ac.elec_ess_bus == 1;
    follow(up2_state, sw1 && powered, 66056, 66057);
}
}  // namespace

KESTRANE_GAUGE(up2_sw, gauge("kestrane up2_sw_jm47", 221, update)
                           .elements(image(41536, 0x4001),              // e0 background
                                     icon(10080, 147, 23, 0x40000003),  // e1 switch 1 on
                                     icon(10064, 147, 15, 0x40000003),  // e2 switch 1 off
                                     icon(10048, 102, 23, 0x40000003),  // e3 switch 2 on
                                     icon(10064, 102, 15, 0x40000003))  // e4 switch 2 off
                           .mouse(click(137, 23, 32, 21, kCursorUp, up2_sw<ac.light_up2_sw1, 1>),
                                  click(137, 2, 32, 21, kCursorDown, up2_sw<ac.light_up2_sw1, 0>),
                                  click(92, 28, 32, 21, kCursorUp, up2_sw<ac.light_up2_sw2, 1>),
                                  click(92, 7, 32, 21, kCursorDown, up2_sw<ac.light_up2_sw2, 0>)))
