// kestrane flapsh_jm47: flap handle. With green pressure the handle sends the
// host's flap steps and follows the host's handle; without it the image moves
// alone. Also keeps the host's hydraulic item in line with the circuits:
// on green, or on the red standby circuit with its own cycle.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar flap_handle = token(328), host_hydraulics = token(824), engine_1 = token(624),
          engine_2 = token(643);

constexpr u32 kFlapsDown = 0x100DE, kFlapsUp = 0x100DF, kToggleHydraulics = 0x10305;

u8 hyd_toggle;  // 0 .. 6, see red_cycle

u32 KCALL step_down(PixPoint*, u32) {
    if (ac.hyd_green_press > 1750)
        host::send_event(kFlapsDown);
    else
        ac.flaps_handle_pos = ac.flaps_handle_pos + 1 > 5 ? 5 : ac.flaps_handle_pos + 1;
    return 0;
}
u32 KCALL step_up(PixPoint*, u32) {
    if (ac.hyd_green_press > 1750)
        host::send_event(kFlapsUp);
    else
        ac.flaps_handle_pos = ac.flaps_handle_pos - 1 < 0 ? 0 : ac.flaps_handle_pos - 1;
    return 0;
}

f64 KCALL across(Element*) {
    return 1.0;
}
f64 KCALL handle(Element*) {
    return clamp_back(ac.flaps_handle_pos, 0, 5);
}

void toggle_to(u8 state) {
    host::send_event(kToggleHydraulics);
    hyd_toggle = state;
}

void green_cycle(f64 item) {
    ac.flaps_handle_pos = bounded(host::read(flap_handle) * 5 / 16000);
    if (item < 0.09 && hyd_toggle != 6)
        toggle_to(6);
    if (item > 0.7 && hyd_toggle != 0)
        hyd_toggle = 0;
}

// Red standby circuit: 0 idle, 1 item switched on, 2 running, 3 switched off
// while running low.
void red_cycle(f64 item) {
    if (host::read(engine_1) + host::read(engine_2) < 20) {
        if (hyd_toggle == 1 || hyd_toggle == 2)
            toggle_to(0);
        return;
    }
    if (item >= 0.7 && hyd_toggle == 0)
        toggle_to(1);
    else if (hyd_toggle == 1 && item < 0.7)
        hyd_toggle = 2;
    else if (hyd_toggle == 2 && item <= 0.1)
        toggle_to(3);
    else if (hyd_toggle == 3 && item >= 0.2)
        toggle_to(2);
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.hyd_green_press > 1750)
        green_cycle(host::read(host_hydraulics));
    else if (ac.hyd_red_press > 950)
        red_cycle(host::read(host_hydraulics));
}
}  // namespace

KESTRANE_GAUGE(flapsh, gauge("kestrane flapsh_jm47", 72, update)
                           .elements(image(41088, 0x4001),                                      // e0
                                     moving(41089, 8, 0, 0x4003, across, handle, 0, 10, 0, 5))  // e1 handle
                           .mouse(click(0, 112, 90, 111, kCursorDown, step_down),
                                  click(0, 0, 90, 111, kCursorUp, step_up)))
