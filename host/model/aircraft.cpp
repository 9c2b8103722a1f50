// The aircraft model: state at load, key events, and the order of one cycle.
#include "host/model/aircraft.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "host/host.h"
#include "host/model/tokens.h"

namespace kestrane::host::model {

namespace {
bool flag(const Host& h, std::uint32_t id) {
    return h.token(id) == 1.0;
}
void toggle(Host& h, std::uint32_t id) {
    h.set_token(id, flag(h, id) ? 0.0 : 1.0);
}
double as_signed(std::uint32_t v) {
    return static_cast<double>(static_cast<std::int32_t>(v));
}
}  // namespace

const std::array<double, 6> kFlapDetents = {0, 1820, 6553, 9830, 13107, 16384};
const std::array<double, 6> kFlapAngles = {0, 5, 10, 20, 30, 40};

void Aircraft::reset(Host& h) {
    *this = Aircraft{};
    using namespace tok;
    // On the ground, parked, cold and dark.
    h.set_token(kOnGround, 1.0);
    for (std::uint32_t id : {kIas, kAltFt, kAltM, kAgl, kVs, kPitch, kBank, kBank360})
        h.set_token(id, 0.0);
    h.set_token(kHeading, 270.0);
    h.set_token(kCompass, 270.0);
    h.set_token(kOat, 15.0);
    h.set_token(kTat, 15.0 / 256.0);
    h.set_token(kBaroHpa, 1013.25);
    h.set_token(kBaroInHg, 1013.25 * 0.02953);
    h.set_token(kSpeed2, 320.0 * 128.0);
    h.set_token(kProbe774, 1.0);
    h.set_token(kOilQty, 30000.0);
    h.set_token(kFuelWeight, 6.7);
    // Tanks: main 1800 gal and auxiliary 300 gal a side, full; no third tank.
    h.set_token(kTankLA + 1, 1800.0);
    h.set_token(kTankLB + 1, 300.0);
    h.set_token(kTankRA + 1, 1800.0);
    h.set_token(kTankRB + 1, 300.0);
    h.set_token(kTank3 + 1, 0.0);
    for (std::uint32_t id : {kTankLA, kTankLB, kTankRA, kTankRB})
        h.set_token(id, kFull);
    h.set_token(kTank3, 0.0);
    for (int s = 0; s < 2; ++s) {
        const EngineTokens& e = kEng[s];
        h.set_token(e.oil_temp, (15.0 + 273.15) * 1.8);
        for (std::uint32_t id :
             {e.n1, e.n2, e.ff, e.oil_press, e.rev, e.throttle, e.lever, e.fuel_lever, e.selector, e.failed})
            h.set_token(id, 0.0);
        h.set_token(e.egt, (15.0 + 273.15) * 1.8);
    }
    // Gear down, flaps up, airbrakes in, parking brake set, exit closed.
    h.set_token(kGearHandle, 1.0);
    for (std::uint32_t id : {kGearL, kGearM, kGearR})
        h.set_token(id, 16384.0);
    h.set_token(kParkBrake, 16384.0);
    // Radios: NAV 1 on the ILS, NAV 2 on the VOR, COM 118.00 / 121.90.
    h.set_token_bcd(kCom1, com_bcd(118.0));
    h.set_token_bcd(kCom2, com_bcd(121.9));
    h.set_token_bcd(kNav1, nav_bcd(kStations[0].freq));
    h.set_token_bcd(kNav2, nav_bcd(kStations[1].freq));
    h.set_token_bcd(kXpdr, 0x2000);
    h.set_token(kCourse, 270.0);
    h.set_token(kClockH, 10.0);
    h.set_token(kClockM, 0.0);
    publish(h);
    step_radios(h);
}

void Aircraft::event(Host& h, std::uint32_t e, std::uint32_t v) {
    using namespace tok;
    if (radio_event(h, e, v) || ap_event(h, e, v))
        return;
    switch (e) {
        // Engines and fuel.
        case 66300:
        case 66301:
            eng_[e - 66300].cranking = true;
            return;
        case 66313:
            toggle(h, kEng[0].failed);
            return;
        case 66314:
            toggle(h, kEng[1].failed);
            return;
        case 65820:
        case 65821:
            h.set_token(kEng[e - 65820].throttle, as_signed(v));
            return;
        case 65963:
        case 65968:
            h.set_token(kEng[e == 65963 ? 0 : 1].throttle, 16384.0);
            return;
        case 65967:
        case 65972:
            h.set_token(kEng[e == 65967 ? 0 : 1].throttle, 0.0);
            return;
        case 65983:
        case 65987:
            h.set_token(kEng[0].fuel_lever, e == 65983 ? 1.0 : 0.0);
            return;
        case 65988:
        case 65992:
            h.set_token(kEng[1].fuel_lever, e == 65988 ? 1.0 : 0.0);
            return;
        case 65955:
        case 65957:
        case 65958:
        case 65959:
        case 65960:
            h.set_token(kEng[0].selector, e == 65955 ? 0.0 : static_cast<double>(e - 65955));
            return;
        case 66516:
        case 66518:
        case 66519:
        case 66520:
        case 66521:
            h.set_token(kEng[1].selector, e == 66516 ? 0.0 : static_cast<double>(e - 66516));
            return;
        case 66494:
            toggle(h, kValveL);
            return;
        case 66495:
            toggle(h, kValveR);
            return;
        // Gear, flaps, airbrakes, brakes, doors, surfaces.
        case 66079:
        case 66080:
            h.set_token(kGearHandle, e == 66080 ? 1.0 : 0.0);
            return;
        case 65758:
        case 65759: {
            const double now = h.token(kFlapHandle);
            double to = now;
            if (e == 65758) {
                for (double d : kFlapDetents)
                    if (d > now + 1.0) {
                        to = d;
                        break;
                    }
            } else {
                for (auto it = kFlapDetents.rbegin(); it != kFlapDetents.rend(); ++it)
                    if (*it < now - 1.0) {
                        to = *it;
                        break;
                    }
            }
            h.set_token(kFlapHandle, to);
            return;
        }
        case 65595:
        case 65603:
            h.set_token(kFlapHandle, e == 65603 ? 16384.0 : 0.0);
            return;
        case 66064:
        case 66065:
            h.set_token(kSpeedbrakeLever, e == 66064 ? 16384.0 : 0.0);
            return;
        case 65786:
            h.set_token(kSpeedbrakeLever, std::clamp(as_signed(v), 0.0, 16384.0));
            return;
        case 66309:
            hyd_item_ = !hyd_item_;
            return;
        case 65752:
        case 66310:
            h.set_token(kParkBrake, h.token(kParkBrake) > 0.0 ? 0.0 : 16384.0);
            return;
        case 66389:
            exit_selected_ = true;
            return;
        case 65538:
            if (exit_selected_)
                h.set_token(kExit, h.token(kExit) > 0.1 ? 0.0 : 1.0);
            exit_selected_ = false;
            return;
        case 65694:
            h.set_token(kElevator, as_signed(v));
            return;
        case 65695:
        case 65612:
            h.set_token(kAileron, as_signed(v));
            return;
        case 65696:
            h.set_token(kRudder, as_signed(v));
            return;
        case 65689:
            h.set_token(kRudder, 0.0);
            return;
        // Lights, heaters, the host's electrical switches.
        case 66240:
            toggle(h, kTaxiLight);
            return;
        case 66239:
            toggle(h, kBeacon);
            return;
        case 66379:
            toggle(h, kNavLight);
            return;
        case 66378:
            toggle(h, kWshieldLight);
            return;
        case 66376:
            toggle(h, 620);
            return;
        case 66377:
            toggle(h, 622);
            return;
        case 66053:
            toggle(h, 11);
            return;
        case 66337:
            toggle(h, kDeice);
            return;
        case 66059:
        case 66060:
            h.set_token(kLanding, e == 66059 ? 1.0 : 0.0);
            return;
        case 66072:
        case 66073:
            h.set_token(kPitotHeat, e == 66072 ? 1.0 : 0.0);
            return;
        case 66056:
        case 66057:
            h.set_token(10, e == 66056 ? 1.0 : 0.0);
            return;
        case 66488:
            h.set_token(kAntiIce1, v != 0 ? 1.0 : 0.0);
            h.set_token(kAntiIce2, v != 0 ? 1.0 : 0.0);
            return;
        case 66579:
            cabin_light_ = !cabin_light_;
            h.set_calc("(A:Light cabin,bool)", cabin_light_ ? 1.0 : 0.0);
            return;
        case 66241:
            toggle(h, 364);
            return;
        case 66242:
            toggle(h, 363);
            return;
        case 66293:
            toggle(h, 740);
            return;
        case 66363:
            toggle(h, 565);
            return;
        case 66364:
            toggle(h, 575);
            return;
        // Clock setting, gyro reset.
        case 65657:
        case 65658:
            clock_offset_s_ += e == 65658 ? 3600.0 : -3600.0;
            return;
        case 65659:
        case 65660:
            clock_offset_s_ += e == 65660 ? 60.0 : -60.0;
            return;
        case 65568:
            h.set_token(85, 0.0);
            return;
        default:
            return;
    }
}

void Aircraft::step(Host& h) {
    step_engines(h);
    step_fuel(h);
    step_systems(h);
    step_flight(h);
    step_radios(h);
    publish(h);
}

// Host values read by other add-ons and by the calculator.
void Aircraft::publish(Host& h) {
    using namespace tok;
    h.set_named("Turbine_N1_1", h.token(kEng[0].n1) / 100.0);
    h.set_named("Turbine_N1_2", h.token(kEng[1].n1) / 100.0);
    h.set_named("Turbine_N2_1", h.token(kEng[0].n2) / 100.0);
    h.set_named("Turbine_N2_2", h.token(kEng[1].n2) / 100.0);
    for (int s = 0; s < 2; ++s) {
        const double n1 = h.token(kEng[s].n1) / 100.0;
        h.set_named(s == 0 ? "Turbine_EPR_1" : "Turbine_EPR_2", 1.0 + 0.9 * n1 * n1);
    }
    h.set_calc("(A:TOTAL WEIGHT,kilogram)", weight_kg(h));
    h.set_calc("(A:AUTO COORDINATION,bool)", auto_coord_ ? 1.0 : 0.0);
    h.set_calc("(A:Light cabin,bool)", cabin_light_ ? 1.0 : 0.0);
    h.set_calc("(A:Adf active frequency:1,Kilohertz)", adf_khz_[0]);
    h.set_calc("(A:Adf active frequency:2,Kilohertz)", adf_khz_[1]);
    // Clock: whole hours and minutes of the day.
    const double t = std::fmod(clock_offset_s_ + h.token(kSimTime), 86400.0);
    const double day = t < 0.0 ? t + 86400.0 : t;
    h.set_token(kClockH, std::floor(day / 3600.0));
    h.set_token(kClockM, std::floor(std::fmod(day, 3600.0) / 60.0));
    h.set_token(kSimTime2, h.token(kSimTime));
}

// Gear legs, flaps, airbrakes, the hydraulic item and the reversers follow
// their controls at finite rates; the surfaces' fractions follow the tokens.
void Aircraft::step_systems(Host& h) {
    using namespace tok;
    auto follow = [&](std::uint32_t id, double target, double rate) {
        const double now = h.token(id);
        const double d = rate * kCycle;
        h.set_token(id, now < target ? std::min(target, now + d) : std::max(target, now - d));
    };
    const double gear = h.token(kGearHandle) > 0.0 ? 16384.0 : 0.0;
    follow(kGearL, gear, 16384.0 / 10.0);
    follow(kGearM, gear, 16384.0 / 11.0);
    follow(kGearR, gear, 16384.0 / 10.5);
    const double handle = h.token(kFlapHandle);
    double angle = 0.0;
    for (std::size_t i = 0; i < kFlapDetents.size(); ++i)
        if (handle >= kFlapDetents[i] - 1.0)
            angle = kFlapAngles[i];
    follow(kFlapL, angle, 2.0);
    follow(kFlapR, angle, 2.0);
    const double brake = std::clamp(h.token(kSpeedbrakeLever), 0.0, 16384.0);
    follow(kSpeedbrakeL, brake, 16384.0 / 2.0);
    follow(kSpeedbrakeR, brake, 16384.0 / 2.0);
    const bool turning = h.token(kEng[0].n2) > 20.0 || h.token(kEng[1].n2) > 20.0;
    follow(kHydItem, hyd_item_ && turning ? 1.0 : 0.0, 0.5);
    for (const EngineTokens& e : kEng) {
        follow(e.rev, h.token(e.throttle) < 0.0 ? 1.0 : 0.0, 0.5);
        h.set_token(e.lever, h.token(e.throttle) / 16384.0);
    }
    h.set_token(kElevatorFrac, h.token(kElevator) / 16384.0);
    h.set_token(kAileronFrac, h.token(kAileron) / 16384.0);
    h.set_token(kRudderFrac, h.token(kRudder) / 16384.0);
}

double Aircraft::side_fuel_gal(const Host& h, int side) const {
    using namespace tok;
    const std::uint32_t a = side == 0 ? kTankLA : kTankRA;
    const std::uint32_t b = side == 0 ? kTankLB : kTankRB;
    return h.token(a) / kFull * h.token(a + 1) + h.token(b) / kFull * h.token(b + 1);
}

double Aircraft::weight_kg(const Host& h) const {
    using namespace tok;
    const double gal =
        side_fuel_gal(h, 0) + side_fuel_gal(h, 1) + h.token(kTank3) / kFull * h.token(kTank3 + 1);
    return 35000.0 + gal * h.token(kFuelWeight) * 0.45359237;
}

}  // namespace kestrane::host::model
