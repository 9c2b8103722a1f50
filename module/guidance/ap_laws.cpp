// Autopilot laws: pitch hold through a vertical-speed target, the two
// altitude holds, glide-slope tracking, the turn knob's aileron steps and
// rudder coordination with the ball.
#include "guidance/ap_laws.h"

#include <cmath>

namespace kestrane::ap {
namespace {

ModuleVar t_pitch = token(78);
ModuleVar t_alt = token(74);
ModuleVar t_vs = token(65);
ModuleVar t_radio_alt = token(614);
ModuleVar t_gs_dev = token(41);
ModuleVar t_elevator = token(317);
ModuleVar t_bank_signed = token(80);
ModuleVar t_ball = token(69);

f64 last_pitch_error = 0.0;

// Vertical-speed gain for a pitch error, ft/min per degree; 0 inside ±0.1.
f64 pitch_gain(f64 e) {
    const f64 m = std::fabs(e);
    if (m >= 1.5)
        return 1500;
    if (m >= 1.0)
        return 1000;
    if (m >= 0.5)
        return 500;
    if (m >= 0.1)
        return 100;
    return 0;
}

void pitch_law(GaugeHeader* g, const Cycle& c) {
    show(g, kLightAltFine, false);
    show(g, kLightAlt, false);
    const f64 e = pitch_now() - ac.ap_pitch_target;
    last_pitch_error = e;
    const f64 gain = pitch_gain(e);
    if (gain > 0) {
        ac.ap_vs_latched = 0;
        ac.ap_vs_cmd = trunc_to<i32>(c.vs - e * gain);
    } else if (e > -0.1 && e < 0.1 && ac.ap_vs_latched == 0) {
        ac.ap_vs_cmd = trunc_to<i32>(c.vs);
        ac.ap_vs_latched = 1;
    }
    // The altitude target follows the present vertical speed, not the command.
    ac.ap_alt_target = trunc_to<i32>(host::read(t_alt));
    if (c.vs > 0)
        host::send_event(kAltTarget, 60000);
    else if (c.vs < 0)
        host::send_event(kAltTarget, 0);
    else
        send_signed(kAltTarget, ac.ap_alt_target);
    send_signed(kVsTarget, ac.ap_vs_cmd);
}

// Both holds capture the altitude once and send it until within the band;
// the plain hold is reset every cycle, so it re-captures continuously.
void altitude_hold(GaugeHeader* g, int light, f64 band) {
    show(g, light, true);
    const f64 alt = host::read(t_alt);
    if (ac.ap_alt_capture == 0) {
        ac.ap_alt_target = trunc_to<i32>(alt);
        ac.ap_vs_cmd = 0;
        host::send_event(kVsTarget, 0);
        ac.ap_alt_capture = 1;
    }
    ac.ap_pitch_target = pitch_now();
    ac.ap_vs_latched = 0;
    if (ac.ap_alt_capture == 1) {
        send_signed(kAltTarget, ac.ap_alt_target);
        const f64 target = ac.ap_alt_target;
        if (target - band < alt && alt < target + band)
            ac.ap_alt_capture = 2;
    }
}

}  // namespace

f64 pitch_now() {
    return -host::read(t_pitch);
}

bool pitch_law_applies(f64 on_ground) {
    return ac.ap_pitch_hold == 1 && ac.ap_alt_hold == 0 && ac.ap_alt_hold_fine == 0 && ac.ap_gs_mode == 0 &&
           ready() && on_ground == 0.0;
}

void vertical_law(GaugeHeader* g, const Cycle& c) {
    if (pitch_law_applies(c.on_ground))
        pitch_law(g, c);
    else if (ac.ap_alt_hold == 1 && ready())
        altitude_hold(g, kLightAlt, 1.5);
    else if (ac.ap_alt_hold_fine == 1 && ready())
        altitude_hold(g, kLightAltFine, 0.5);
}

void glide_slope_law(GaugeHeader* g, const Cycle& c) {
    show(g, kLightGs, true);
    if (ac.fd_gs_state > 0) {
        ac.ap_alt_hold = 0;
        ac.ap_alt_hold_fine = 0;
    }
    const f64 vs = host::read(t_vs) / 1.30048;
    const f64 ra = host::read(t_radio_alt) * 3.281;
    const f64 target = ac.fd_gs_vs_target / 1.30048;
    if (ra <= 100)
        ac.ap_vs_cmd = trunc_to<i32>(target);
    else if (ra > 100 && ra <= 500)
        ac.ap_vs_cmd = trunc_to<i32>(target - host::read(t_gs_dev) * 10);
    else if (vs > target + 20)
        ac.ap_vs_cmd = trunc_to<i32>(target - 100);
    else if (vs < target - 20)
        ac.ap_vs_cmd = trunc_to<i32>(target + 100);
    else
        ac.ap_vs_cmd = trunc_to<i32>(target);
    host::send_event(kAltTarget, 0);
    // Descents round down to the next hundred once past its half.
    const std::int64_t cmd = ac.ap_vs_cmd;
    const std::int64_t hundreds = cmd / 100 * 100;
    send_signed(kVsTarget, sat_i32(cmd <= hundreds - 50 ? hundreds - 100 : cmd));
    if (is_on(c.on_ground)) {
        // touchdown: hold the nose down, at least 3000
        const std::int64_t push = std::int64_t{trunc_to<i32>(host::read(t_elevator))} + 100;
        ac.ap_rollout_elevator = push > 3000 ? sat_i32(push) : 3000;
        send_signed(kElevator, ac.ap_rollout_elevator);
    }
}

i32 roll_bias(i32 bank_cmd, i32 present) {
    constexpr i32 kBias[] = {180, 200, 280, 310, 340, 370};  // 5 .. 30 degrees
    if (bank_cmd == 0)
        return present;
    const std::int64_t mag = bank_cmd < 0 ? -std::int64_t{bank_cmd} : bank_cmd;
    const std::int64_t step = mag >= 30 ? 6 : (mag + 4) / 5;
    const i32 b = kBias[step - 1];
    return bank_cmd < 0 ? -b : b;
}

i32 turn_aileron(i32 bank, i32 cmd, i32 bias) {
    const std::int64_t b = bank, c = cmd, r = bias;
    std::int64_t v;
    if (b >= c + 15)
        v = 8000;
    else if (b <= c - 15)
        v = -8000;
    else if (b >= c + 10)
        v = r + 6000;
    else if (b <= c - 10)
        v = r - 6000;
    else if (b >= c + 5)
        v = r + 3000;
    else if (b <= c - 5)
        v = r - 3000;
    else if (b >= c + 1)
        v = r + 1000;
    else if (b <= c - 1)
        v = r - 1000;
    else
        v = r - 30;
    return sat_i32(v);
}

i32 rudder_to_centre(i32 r) {
    if (r <= -100)
        return r + 100;
    if (r >= 100)
        return r - 100;
    return 0;
}

void rudder_coordination() {
    const f64 host_coord = host::calc("(A:AUTO COORDINATION,bool)");
    i32& r = ac.ap_rudder_cmd;
    if (ac.ap_yaw_coord == 1 && host_coord != 1.0) {
        ac.ap_rudder_phase = 1;
        const f64 bank = host::read(t_bank_signed);
        if (bank >= 5 || bank <= -5) {
            const f64 s = host::read(t_ball);
            if (s >= -20 && s < -5) {
                if (r <= 5000)
                    r += 100;
            } else if (s < -20) {
                if (r <= 12000)
                    r += 100;
            } else if (s > 5 && s <= 20) {
                if (r >= -5000)
                    r -= 100;
            } else if (s > 20) {
                if (r >= -12000)
                    r -= 100;
            } else if (s >= -5 && s <= 5) {
                r = rudder_to_centre(r);
            }
            send_signed(kRudder, r);
        }
        if (bank > -5 && bank < 5)
            ac.ap_rudder_phase = 2;
    }
    if (ac.ap_rudder_phase == 2) {
        r = rudder_to_centre(r);
        send_signed(kRudder, r);
        if (r == 0)
            ac.ap_rudder_phase = 0;
    }
}

}  // namespace kestrane::ap
