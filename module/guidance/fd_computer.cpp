#include "guidance/fd_computer.h"

#include <cmath>

#include "frame/gauge.h"
#include "guidance/adi_draw.h"
#include "guidance/fd_law.h"

namespace kestrane::fd {
namespace {

ModuleVar tick = token(1);
ModuleVar course_dev = token(40);
ModuleVar gs_dev = token(41);
ModuleVar gs_valid = token(44);
ModuleVar sel_course = token(45);
ModuleVar station = token(49);
ModuleVar ias = token(61);
ModuleVar vert_speed = token(65);
ModuleVar pitch = token(78);
ModuleVar bank = token(80);
ModuleVar heading = token(84);
ModuleVar fail_a = token(276);
ModuleVar fail_b = token(288);
ModuleVar speed_along = token(551);
ModuleVar speed_across = token(552);
ModuleVar throttle_1 = token(558);
ModuleVar throttle_2 = token(568);
ModuleVar radio_alt = token(614);

constexpr f64 kVsUnitsPerFpm = 1.30048;  // host vertical-speed units per ft/min

struct Computer {
    f64 course = 0.0;  // drift-corrected
    f64 vs_samples[3] = {0.0, 0.0, 0.0};
    f64 t1 = 0.0, t2 = 0.0;  // glide-slope re-evaluation ticks
    u8 q1 = 0, q2 = 0;
    u8 h1 = 0, h2 = 0;      // intercept-angle hysteresis
    u8 roll_state[4] = {};  // per selector position 1..4
    u8 pitch_att = 0, pitch_gs = 0;
    u8 bank_toppled = 0, pitch_toppled = 0;
};
Computer fdc{};

// Glide-slope vertical-speed target, from radio altitude and capture state.
void gs_target(f64 tick_now) {
    const f64 ra = host::read(radio_alt);
    const f64 dev = host::read(gs_dev);
    const f64 nominal = -(host::read(ias) / 2.0 * 10.0 * kVsUnitsPerFpm);
    const f64 vs = host::read(vert_speed);
    if (ra > 240.0)
        fdc.vs_samples[0] = vs;
    if (ra > 220.0)
        fdc.vs_samples[1] = vs;
    if (ra > 202.0)
        fdc.vs_samples[2] = vs;
    const f64 mean = (fdc.vs_samples[0] + fdc.vs_samples[1] + fdc.vs_samples[2]) / 3.0;
    f64& target = ac.fd_gs_vs_target;
    if (ra <= 21.0) {
        target = nominal;
    } else if (ra <= 200.0) {
        target = mean;
    } else if (ac.fd_gs_state == 0) {
        target = 0.0;
    } else if (ac.fd_gs_state == 1) {
        target = nominal;
    } else if (ac.fd_gs_state == 2) {
        if (fdc.t1 == 0.0) {
            fdc.t1 = tick_now + 20.0;
        } else if (tick_now >= fdc.t1 && fdc.q1 == 0) {
            target = gs_evaluate(dev, nominal);
            fdc.t2 = fdc.t1 + 20.0;
            fdc.q1 = 1;
            fdc.q2 = 0;
        } else if (tick_now >= fdc.t2 && fdc.q2 == 0) {
            target = gs_evaluate(dev, nominal);
            fdc.t1 = fdc.t2 + 20.0;
            fdc.q2 = 1;
            fdc.q1 = 0;
        }
    }
    target = bounded(target);  // huge speeds saturate
}

// Glide-slope arming and capture; returns the glide-slope pitch command.
f64 gs_capture(f64 hdg, f64 course, f64 cmd) {
    const f64 dev = host::read(gs_dev);
    const f64 vs = host::read(vert_speed);
    if (!in_course_sector(hdg, course) || !is_on(host::read(gs_valid))) {
        ac.fd_gs_state = 0;
        fdc.t1 = fdc.t2 = 0.0;
        return 0.0;
    }
    if (ac.fd_gs_state == 0 && dev > -15.0 && vs > -250.0) {
        ac.fd_gs_state = 1;
        return 0.0;
    }
    if (ac.fd_gs_state == 1 && dev < 0.0)
        return cmd;
    if (ac.fd_gs_state == 1 && dev >= 0.0) {
        ac.fd_gs_state = 2;
        return cmd;
    }
    return ac.fd_gs_state == 2 ? cmd : 0.0;
}

void park(int times) {
    for (int i = 0; i < times; ++i) {
        ac.fd_roll_bar = ac.fd_roll_bar + 1.0 > 14.0 ? 14.0 : ac.fd_roll_bar + 1.0;
        ac.fd_pitch_bar = ac.fd_pitch_bar - 1.0 < -4.0 ? -4.0 : ac.fd_pitch_bar - 1.0;
    }
}

void set_flags(GaugeHeader* g, bool fd_flag, bool att_flag) {
    show(g, adi::kFdFlag, fd_flag);
    show(g, adi::kAttFlag, att_flag);
    ac.fd_flag = fd_flag;
    ac.adi_flag = att_flag;
}

struct Commands {
    f64 roll_hdg, roll_nav, pitch_att, pitch_gs;
};

void bars(GaugeHeader* g, bool powered, const Commands& c) {
    u8* f = fdc.roll_state;
    if (!powered) {
        f[0] = f[1] = f[2] = f[3] = 0;
        set_flags(g, true, true);
        park(1);
    }
    const u8 mode = ac.fd_mode_sel;
    if (powered && mode == 0) {
        park(1);
        f[0] = f[1] = f[2] = f[3] = 0;
        fdc.pitch_att = fdc.pitch_gs = 0;
        set_flags(g, true, false);
        return;
    }
    if (!powered || mode > 4) {
        park(1);
        f[0] = f[1] = f[2] = f[3] = 0;
        set_flags(g, true, true);
        return;
    }
    int used = mode - 1;
    RollFilter type = RollFilter::kNav;
    f64 roll = c.roll_nav;
    f64 pitch_cmd = c.pitch_att;
    u8* pitch_state = &fdc.pitch_att;
    if (mode == 1) {
        roll = -c.roll_nav;
    } else if (mode == 2 || (mode == 4 && ac.fd_go_around == 1)) {
        used = 1;
        type = RollFilter::kHdg;
        roll = c.roll_hdg;
    } else if (mode == 4) {
        pitch_cmd = c.pitch_gs;
        pitch_state = &fdc.pitch_gs;
    }
    for (int i = 0; i < 4; ++i) {
        if (i != used)
            f[i] = 2;
    }
    roll_filter(ac.fd_roll_bar, bar_target(roll), f[used], type);
    pitch_filter(ac.fd_pitch_bar, bar_target(pitch_cmd), *pitch_state);
    set_flags(g, false, false);
}

}  // namespace

void computer_cycle(GaugeHeader* g) {
    // Go-around: APP selected with either throttle at 0.75 or more.
    const f64 thr1 = host::read(throttle_1);
    const f64 thr2 = host::read(throttle_2);
    ac.fd_go_around = ac.fd_mode_sel == 4 && (thr1 >= 0.75 || thr2 >= 0.75);

    ac.fd_speed_dev_pos = 10.0 - 0.5 * static_cast<f64>(ac.fd_speed_dev);

    const f64 course = host::read(sel_course);
    fdc.course = drift_course(course, host::read(speed_along), host::read(speed_across), fdc.course);

    const f64 now = host::read(tick);
    gs_target(now);

    Commands c{};
    const f64 theta = bounded(host::read(pitch));
    c.pitch_att = -4.0 * (theta + (ac.fd_go_around == 1 ? 10.0 : ac.fd_pitch_trim));
    const f64 vs_fpm = host::read(vert_speed) * 3.281 * 60.0 / 256.0;
    const f64 gs_cmd = -((ac.fd_gs_vs_target / kVsUnitsPerFpm - vs_fpm) / 50.0);

    // Heading select.
    const f64 hdg = host::read(heading);
    const f64 phi = bounded(host::read(bank));  // the sphere saturates, never holds inf
    f64 eh = wrap180(static_cast<f64>(ac.hsi_hdg_bug) - hdg);
    if (std::fabs(eh) <= 0.5)
        eh = 0.0;
    c.roll_hdg = -3.0 <= eh && eh <= 3.0 ? eh : hdg_band(eh) + phi;

    // Course intercept.
    const f64 quantity = host::read(station);
    const f64 dev = host::read(course_dev);
    const Thresholds s = thresholds(ac.nav1_code_loc == 1 || ac.nav1_code_gs == 1, quantity, fdc.h1, fdc.h2);
    const i32 angle = intercept_angle(dev, s, fdc.h1, fdc.h2);
    ac.fd_intercept_hdg = intercept_heading(dev, s.s[0], fdc.course, angle, hdg);
    f64 en = wrap180(static_cast<f64>(ac.fd_intercept_hdg) - hdg);
    if (std::fabs(en) <= 0.2)
        en = 0.0;
    const f64 bn = nav_band(en);
    if (bn != 0.0)
        ac.fd_course_captured = 1;
    if (quantity <= 0.0)
        ac.fd_course_captured = 0;
    c.roll_nav = -5.0 <= en && en <= 5.0 ? en : bn + phi;

    c.pitch_gs = gs_capture(hdg, course, gs_cmd);

    const bool tadg = ac.elec_tadg_on == 1;
    bars(g, ac.elec_ac_bus_1 == 1 && tadg, c);

    // Instrument failures raise both flags; the bars keep working.
    const bool failed_a = is_on(host::read(fail_a));
    const bool failed_b = is_on(host::read(fail_b));
    if (failed_a || failed_b) {
        set_flags(g, true, true);
    } else if (tadg) {
        show(g, adi::kAttFlag, false);
        ac.adi_flag = 0;
    }

    ac.adi_bank = adi_bank_step(ac.adi_bank, phi, tadg, fdc.bank_toppled);
    ac.adi_pitch = pitch_step(ac.adi_pitch, theta, tadg, fdc.pitch_toppled);

    const bool night = ac.light_panel_night == 1;
    show(g, adi::kSpeedDevNeedle, !night);
    show(g, adi::kLitBackground, night);
    show(g, adi::kLitSpeedDevNeedle, night);
}

}  // namespace kestrane::fd
