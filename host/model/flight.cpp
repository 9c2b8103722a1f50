// A kinematic flight model: speed from thrust and drag, flight path from the
// elevator or the host autopilot, bank from the ailerons or the autopilot,
// take-off, touchdown, air data.
#include <algorithm>
#include <cmath>

#include "host/host.h"
#include "host/model/aircraft.h"
#include "host/model/angles.h"
#include "host/model/tokens.h"

namespace kestrane::host::model {

namespace {
constexpr double kG = 19.07;  // 1 g in knots per second
constexpr double kFieldFt = 0.0;

double toward(double now, double target, double rate) {
    const double d = rate * kCycle;
    return now < target ? std::min(target, now + d) : std::max(target, now - d);
}
}  // namespace

// Landing reference speed over 1.3 with full flap, higher with less flap.
double Aircraft::stall_speed(double weight_kg, double flaps_deg) {
    const double vref = (weight_kg / 1000.0 - 40.0) * 1.4375 + 119.5;
    return vref / 1.3 * (1.0 + 0.3 * (1.0 - std::clamp(flaps_deg, 0.0, 40.0) / 40.0));
}

// Host autopilot: bank rate toward its lateral target and the flight path for
// its vertical mode. Leaves them untouched when no mode holds the axis.
void Aircraft::step_autopilot(Host& h, double& bank_rate, double& gamma_deg, bool& pitch_held) {
    using namespace tok;
    if (h.token(kApOn) != 1.0)
        return;
    const double hdg = h.token(kHeading);
    const double bank = h.token(kBank);
    bool lateral = true;
    double bank_target = 0.0;  // token 80 sense: positive left
    double hdg_target = hdg;
    if (h.token(kApLoc) == 1.0 || h.token(kApNav) == 1.0) {
        const bool loc = h.token(kNav1Code) == 192.0;
        const double dev = h.token(kCdi) / (loc ? 50.8 : 12.7);  // degrees, + when the course is right
        const double course = loc ? kStations[0].course : h.token(kCourse);
        hdg_target =
            h.token(kNav1Signal) > 0.0 ? course + std::clamp(dev * (loc ? 8.0 : 3.0), -30.0, 30.0) : hdg;
    } else if (h.token(kApHdg) == 1.0) {
        hdg_target = ap_hdg_deg_;
    } else if (h.token(kApWing) != 1.0) {
        lateral = false;
    }
    if (lateral) {
        bank_target = -std::clamp(wrap180(hdg_target - hdg) * 2.5, -25.0, 25.0);
        bank_rate = std::clamp(bank_target - bank, -5.0, 5.0);
    }
    const double alt = h.token(kAltFt);
    const double tas = std::max(60.0, h.token(kIas) * (1.0 + 0.02 * alt / 1000.0));
    double vs = 0.0;
    if (h.token(kApAlt) == 1.0) {
        const double err = ap_alt_ft_ - alt;
        const bool captured =
            std::fabs(err) < 50.0 || (ap_vs_fpm_ > 0.0 && err < 0.0) || (ap_vs_fpm_ < 0.0 && err > 0.0);
        vs = captured ? std::clamp(err * 4.0, -600.0, 600.0) : ap_vs_fpm_;
    } else {
        vs = tas * 101.27 * std::sin(gamma_deg * kDeg);  // attitude held
    }
    gamma_deg = std::asin(std::clamp(vs / (tas * 101.27), -0.3, 0.3)) / kDeg;
    pitch_held = true;
}

void Aircraft::step_flight(Host& h) {
    using namespace tok;
    bool ground = h.token(kOnGround) == 1.0;
    double ias = std::max(0.0, h.token(kIas));
    double alt = h.token(kAltFt);
    double hdg = wrap360(h.token(kHeading));
    double pitch = -h.token(kPitch);  // nose up positive
    double bank = h.token(kBank);     // left wing down positive
    const double w_kg = weight_kg(h);
    const double w_lb = w_kg * 2.20462;
    const double flaps = h.token(kFlapL);
    const double vs_kt = stall_speed(w_kg, flaps);
    double thrust_lb = 0.0;
    for (const EngineTokens& e : kEng) {
        const double t = thrust(h.token(e.n1));
        thrust_lb += h.token(e.rev) > 0.5 ? -0.45 * t : t;
    }
    const double gear = std::clamp(h.token(kGearM) / 16384.0, 0.0, 1.0);
    const double brakes = std::clamp(h.token(kSpeedbrakeL) / 16384.0, 0.0, 1.0);
    double drag = 0.266 * ias * ias * (1.0 + 0.9 * flaps / 40.0 + 0.2 * gear + 0.5 * brakes);
    const double elevator = h.token(kElevator) / 16384.0;  // + nose down
    double gamma = 0.0;
    double turn = 0.0;  // deg/s, + right
    if (ground) {
        double brake = std::max(h.token(kBrakeL), h.token(kBrakeR)) / 16384.0;
        if (h.token(kParkBrake) > 0.0)
            brake = 1.0;
        brake = std::clamp(brake, 0.0, 1.0);
        double a = ((thrust_lb - drag) / w_lb - 0.015 - 0.4 * brake) * kG;
        // Friction holds a stopped aircraft; it never pushes it backwards.
        if (ias <= 0.0 && a < 0.0)
            a = 0.0;
        ias = std::max(0.0, ias + a * kCycle);
        const double want = (elevator < -0.05 && ias > 0.9 * vs_kt) ? std::min(15.0, -elevator * 20.0) : 0.0;
        pitch = toward(pitch, want, 3.0);
        bank = 0.0;
        turn = h.token(kRudder) / 16384.0 * 20.0 * std::min(ias / 20.0, 1.0);
        if (ias >= 1.08 * vs_kt && pitch >= 6.0)
            ground = false;  // lift-off
    } else {
        double bank_rate = h.token(kAileron) / 16384.0 * 20.0;
        const double tas0 = std::max(60.0, ias * (1.0 + 0.02 * alt / 1000.0));
        const double alpha = std::clamp(4.0 * std::pow(1.3 * vs_kt / std::max(ias, 50.0), 2.0), 0.0, 15.0);
        double gamma_now = pitch - alpha;
        double gamma_target = std::clamp(-elevator * 20.0, -15.0, 20.0);
        bool held = false;
        step_autopilot(h, bank_rate, gamma_now, held);
        if (held)
            gamma_target = gamma_now;
        gamma_now = pitch - alpha;
        if (ias < vs_kt)
            gamma_target = std::min(gamma_target, -5.0);  // stalled: the nose drops
        gamma = toward(gamma_now, gamma_target, 2.0);
        bank = std::clamp(bank + bank_rate * kCycle, -60.0, 60.0);
        turn = -1091.0 * std::tan(bank * kDeg) / tas0;
        drag += w_lb * 0.045 * std::pow(1.3 * vs_kt / std::max(ias, 50.0), 2.0);
        const double a = ((thrust_lb - drag) / w_lb - std::sin(gamma * kDeg)) * kG;
        ias = std::max(0.0, ias + a * kCycle);
        alt += tas0 * 101.27 * std::sin(gamma * kDeg) / 60.0 * kCycle;
        pitch = gamma + alpha;
        if (alt <= kFieldFt + 3.0 && gamma <= 0.0) {  // touchdown: the wheels meet the runway
            alt = kFieldFt;
            ground = true;
            gamma = 0.0;
            bank = 0.0;
            pitch = std::max(0.0, pitch);
        }
    }
    if (ground)
        alt = kFieldFt;
    hdg = wrap360(hdg + turn * kCycle);
    heading_rate_ = turn;
    const double tas = ias * (1.0 + 0.02 * alt / 1000.0);
    const double track = hdg * kDeg;
    x_nm_ += tas * std::sin(track) / 3600.0 * kCycle;
    y_nm_ += tas * std::cos(track) / 3600.0 * kCycle;
    const double vs_fpm = ground ? 0.0 : tas * 101.27 * std::sin(gamma * kDeg);
    const double oat = 15.0 - 1.98 * alt / 1000.0;
    const double ms = tas * 0.514444;
    h.set_token(kOnGround, ground ? 1.0 : 0.0);
    h.set_token(kIas, ias);
    h.set_token(kAltFt, alt);
    h.set_token(kAltM, alt / 3.281);
    h.set_token(kAgl, (alt - kFieldFt) / 3.281);
    h.set_token(kVs, vs_fpm * 1.30048);
    h.set_token(kPitch, -pitch);
    h.set_token(kBank, bank);
    h.set_token(kBank360, wrap360(bank));
    h.set_token(kHeading, hdg);
    h.set_token(kCompass, hdg);
    h.set_token(kOat, oat);
    h.set_token(kTat, (oat + ms * ms / 2010.0) / 256.0);
    h.set_token(kMach, tas / (661.47 * std::sqrt((oat + 273.15) / 288.15)) * 20480.0);
    h.set_token(kStall, !ground && ias < vs_kt ? 1.0 : 0.0);
    h.set_token(kBall, std::clamp(h.token(kRudder) / 16384.0 * 60.0 - 0.4 * bank, -100.0, 100.0));
    h.set_token(kTurnRate, std::clamp(turn / 3.0 * 500.0, -1200.0, 1200.0));
    h.set_token(kVelAlong, tas * 1.68781);
    h.set_token(kVelAcross, 0.0);
}

}  // namespace kestrane::host::model
