// kestrane ap_jm47: the autopilot controller (pitch wheel, turn knob, six
// push-buttons with lights). Its callback runs every autopilot law and hands
// the host its targets, its hold modes and the stepped aileron and rudder.
#include "guidance/ap_laws.h"

namespace {
using namespace kestrane;
using namespace kestrane::ap;

ap::Wheel wheel{};
constexpr ap::Panel kMain{.wheel = wheel, .host_yaw_coord = false};

ModuleVar t_tick = token(1);
ModuleVar t_hold_105 = token(105), t_hold_111 = token(111), t_hold_112 = token(112), t_hold_104 = token(104);
ModuleVar t_bank = token(79), t_aileron = token(313), t_unused_107 = token(107);
ModuleVar t_on_ground = token(60), t_vs = token(65);
ModuleVar t_thrust_1 = token(558), t_thrust_2 = token(568), t_ga_inhibit = token(115);
ModuleVar t_pitch = token(78);  // refreshed for the go-around climb

Cycle read_cycle() {
    Cycle c{};
    c.engaged_raw = host::read(t_engaged);
    c.hold_108 = host::read(t_alt_hold);
    c.hold_106 = host::read(t_hdg_hold);
    c.hold_105 = host::read(t_hold_105);
    c.hold_111 = host::read(t_hold_111);
    c.hold_112 = host::read(t_hold_112);
    c.hold_104 = host::read(t_hold_104);
    c.bank_0_360 = host::read(t_bank);
    host::read(t_aileron);
    host::read(t_unused_107);
    c.on_ground = host::read(t_on_ground);
    c.vs_raw = host::read(t_vs);
    c.vs = c.vs_raw / 1.30048;
    c.engaged = is_on(c.engaged_raw);
    return c;
}

// Sends the events that clear every host hold still active.
void clear_host_holds(const Cycle& c) {
    if (is_on(c.engaged_raw))
        host::send_event(kApOff);
    if (is_on(c.hold_104))
        host::send_event(kClearHold104);
    if (is_on(c.hold_106))
        host::send_event(kHdgHoldOff);
    if (is_on(c.hold_105)) {
        host::send_event(kClearNav1);
        host::send_event(kClearNav2);
    }
    if (is_on(c.hold_112) || is_on(c.hold_111))
        host::send_event(kClearLoc);
}

bool thrust_for_go_around() {
    const f64 l1 = host::read(t_thrust_1), l2 = host::read(t_thrust_2);
    return l1 >= 0.75 || l2 >= 0.75;
}

void engage_pitch_hold(GaugeHeader* g, const Cycle& c) {
    if (c.engaged && ac.ap_pitch_hold == 0 && ready() && c.on_ground == 0.0 && ac.ap_gs_mode == 0) {
        show(g, kLightAp, true);
        host::send_event(kPitchHoldOn);
        ac.ap_vs_cmd = trunc_to<i32>(c.vs);
        ac.ap_pitch_target = pitch_now();
        ac.ap_vs_latched = 0;
        ac.ap_pitch_hold = 1;
        ac.ap_yaw_coord = 1;
    } else {
        show(g, kLightAp, false);
    }
}

// Full thrust on a go-around: drop the lateral and approach holds, keep the
// heading, and creep the pitch target up to 10 degrees while climbing slowly.
void go_around_climb(Cycle& c) {
    const f64 l1 = host::read(t_thrust_1), l2 = host::read(t_thrust_2);
    host::read(t_pitch);
    c.hold_106 = host::read(t_hdg_hold);
    if (l1 >= 0.75 || l2 >= 0.75) {
        if (is_on(c.hold_104))
            host::send_event(kClearHold104);
        if (is_on(c.hold_105)) {
            host::send_event(kClearNav1);
            host::send_event(kClearNav2);
        }
        if (is_on(c.hold_112) || is_on(c.hold_111))
            host::send_event(kClearLoc);
        ac.ap_nav_mode = 0;
        if (is_on(c.hold_106))
            host::send_event(kHdgHoldOn);
        ac.ap_gs_mode = 0;
        ac.ap_app_latch = 0;
        f64& p = ac.ap_pitch_target;
        if (c.vs_raw / 256 * 3.281 * 60 < 2000) {
            if (p < 2)
                p += 0.001;
            else if (p < 7.5)
                p += 0.01;
            else if (p < 10)
                p += 0.001;
            else
                p = 10.0;
        }
    }
    if (l1 < 0.75 && l2 < 0.75)
        ac.ap_go_around = 0;
}

void start_go_around() {
    ac.ap_go_around = 1;
    host::send_event(kClearNav1);
    host::send_event(kClearNav2);
    host::send_event(kClearLoc);
    ac.ap_nav_mode = 0;
    ac.ap_hdg_mode = 1;
    host::send_event(kHdgHoldOn);
    host::send_event(kClearHold104);
    ac.ap_gs_mode = 0;
    ac.ap_app_latch = 0;
}

// NAV re-selects its lateral mode every cycle: GPS, localizer (or a
// go-around on full thrust), or the course intercept.
void navigation(GaugeHeader* g) {
    show(g, kLightNav, true);
    if (is_on(host::read(t_gps_nav))) {
        host::send_event(kNavHoldOn);
        ac.ap_nav_mode = 2;
    } else if (ils_tuned()) {
        const bool thrust = thrust_for_go_around();
        if (thrust && host::read(t_ga_inhibit) == 0.0) {
            start_go_around();
        } else {
            host::send_event(kClearNav1);
            host::send_event(kLocHoldOn);
            ac.ap_nav_mode = 3;
        }
    } else {
        host::send_event(kClearNav1);
        ac.ap_nav_mode = 1;
    }
    if (ac.ap_nav_mode == 1 && ac.fd_course_captured == 1) {
        ac.ap_hdg_mode = 0;
        send_signed(kHdgTarget, ac.fd_intercept_hdg);
        host::send_event(kHdgHoldOn);
    }
}

void autopilot_off(GaugeHeader* g, const Cycle& c) {
    ac.ap_pitch_hold = 0;
    ac.ap_alt_hold = 0;
    ac.ap_alt_hold_fine = 0;
    ac.ap_hdg_mode = 0;
    ac.ap_nav_mode = 0;
    ac.ap_gs_mode = 0;
    ac.ap_turn_mode = 0;
    ac.ap_bank_cmd = 0;
    wheel_stop(wheel);
    if (ac.ap_rudder_phase == 1)
        ac.ap_rudder_phase = 2;
    clear_host_holds(c);
    hide_lights(g);
    ac.ap_yaw_coord = 0;
}

// Present bank from token 79 (0..360): positive one way, negative the other.
void bank_from_host(const Cycle& c) {
    const f64 b = c.bank_0_360;
    if (b >= 180 && b <= 359)
        ac.ap_bank_deg = trunc_to<i32>(360 - b);
    else if (b >= 0 && b < 180)
        ac.ap_bank_deg = trunc_to<i32>(-b);
}

void lateral_default(const Cycle& c) {
    if (!c.engaged || ac.ap_turn_mode != 0 || !ready())
        return;
    if (c.hold_106 == 0.0 && c.hold_105 == 0.0 && c.hold_111 == 0.0) {
        host::send_event(kLateralIdle);
        ac.ap_bank_cmd = 0;
    } else if (is_on(c.hold_106) || is_on(c.hold_105) || is_on(c.hold_111)) {
        host::send_event(kClearHold104);
        ac.ap_bank_cmd = 0;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    Cycle c = read_cycle();
    if (c.hold_106 == 0.0 && ac.ap_go_around == 0)
        ac.ap_hdg_mode = 0;
    engage_pitch_hold(g, c);
    vertical_law(g, c);
    if (ac.ap_alt_hold_fine == 0) {
        show(g, kLightAltFine, false);
        ac.ap_alt_capture = 0;
    }
    if (ac.ap_alt_hold == 0)
        show(g, kLightAlt, false);
    if (c.hold_108 == 0.0) {
        show(g, kLightAltFine, false);
        show(g, kLightAlt, false);
    }
    if (ac.fd_course_captured == 1 && ac.ap_nav_mode == 1)
        ac.ap_hdg_mode = 0;
    if (c.engaged && ac.ap_hdg_mode == 1 && ready()) {
        show(g, kLightHdg, true);
        send_signed(kHdgTarget, ac.hsi_hdg_bug);
    } else {
        show(g, kLightHdg, false);
    }
    if (ac.ap_go_around == 1 && ready())
        go_around_climb(c);
    if (c.engaged && ac.ap_nav_mode > 0 && ready())
        navigation(g);
    else
        show(g, kLightNav, false);
    if (c.engaged && ac.ap_gs_mode == 1 && ready())
        glide_slope_law(g, c);
    else
        show(g, kLightGs, false);
    if (c.engaged && ready())
        show(g, kLightAp, true);
    if (ac.ap_ready != 1)
        clear_host_holds(c);
    if (c.engaged_raw == 0.0)
        autopilot_off(g, c);
    bank_from_host(c);
    lateral_default(c);
    if (ac.ap_bank_cmd > 30)
        ac.ap_bank_cmd = 30;
    if (ac.ap_bank_cmd < -30)
        ac.ap_bank_cmd = -30;
    ac.ap_roll_bias = roll_bias(ac.ap_bank_cmd, ac.ap_roll_bias);
    if (ac.ap_turn_mode == 1 && c.engaged)
        send_signed(kAileron, turn_aileron(ac.ap_bank_deg, ac.ap_bank_cmd, ac.ap_roll_bias));
    wheel_cycle(g, wheel, host::read(t_tick));
    rudder_coordination();
}
}  // namespace

KESTRANE_GAUGE(ap, ap::controller<kMain>("kestrane ap_jm47", update, 41056))
