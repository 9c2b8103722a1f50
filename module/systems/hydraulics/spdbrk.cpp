// kestrane spdbrk_jm47: airbrake lever. The host moves the airbrakes on the
// lever's events, only with green pressure; the lever image follows the
// host's lever position. Also tracks the ground deployment cycle that ends
// the ground spoiler arming.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar lever = token(325), left_airbrake = token(326), on_ground = token(60);

constexpr u32 kAirbrakesOut = 0x10210, kAirbrakesIn = 0x10211;
constexpr f64 kExtended = 16000;

bool green_ok() {
    return ac.hyd_green_press > 1750;
}

u32 KCALL retract(PixPoint*, u32) {
    if (green_ok())
        host::send_event(kAirbrakesIn);
    return 0;
}
u32 KCALL extend(PixPoint*, u32) {
    if (green_ok())
        host::send_event(kAirbrakesOut);
    return 0;
}

f64 KCALL across(Element*) {
    return 1.0;
}
f64 KCALL lever_step(Element*) {
    return static_cast<f64>(ac.airbrake_lever_idx);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    // An out-of-range step is pulled back to 13 on the cycle after it is seen.
    if (ac.airbrake_lever_idx > 13)
        ac.airbrake_lever_idx = 13;
    else
        ac.airbrake_lever_idx = trunc_to<u32>(host::read(lever) / 1260);
    show(g, 2, ac.airbrake_lever_idx == 0);

    const f64 ground = host::read(on_ground);
    const f64 left = host::read(left_airbrake);
    const bool powered = ac.elec_ess_bus == 1 && green_ok();
    if (is_on(ground) && powered) {
        if (left >= kExtended)
            ac.spoil_gnd_cycle = 2;
        else if (ac.spoil_gnd_cycle == 2 && left == 0.0)
            ac.spoil_gnd_cycle = 1;
    } else if (ground == 0.0) {
        ac.spoil_gnd_cycle = 0;
    }
}
}  // namespace

KESTRANE_GAUGE(spdbrk,
               gauge("kestrane spdbrk_jm47", 48, update)
                   .elements(image(40944, 0x4001),                                           // e0
                             moving(40945, 4, 0, 0x4003, across, lever_step, 0, 10, 0, 13),  // e1 lever
                             icon(40946, 4, 130, 0x40000003))                                // e2 stowed mark
                   .mouse(click(0, 24, 48, 60, kCursorDown, retract),
                          click(0, 84, 48, 60, kCursorUp, extend)))
