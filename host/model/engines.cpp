// Engines and fuel: cranking, light-off, spool-up to idle by itself, the
// engine values, windmilling in flight, shutdown; the tanks they burn from.
#include <algorithm>
#include <cmath>

#include "host/host.h"
#include "host/model/aircraft.h"
#include "host/model/tokens.h"

namespace kestrane::host::model {

namespace {
constexpr double kIdleN2 = 62.0;      // %, self-sustained with throttle at idle
constexpr double kStarterN2 = 28.0;   // % the starter alone reaches
constexpr double kLightOffN2 = 12.0;  // % needed for light-off (and relight)
constexpr double kRankine = 1.8;

double rankine(double c) {
    return (c + 273.15) * kRankine;
}
double celsius(double r) {
    return r / kRankine - 273.15;
}
// First-order approach of `now` to `target` with time constant `tau` seconds.
double lag(double now, double target, double tau) {
    return now + (target - now) * std::min(1.0, kCycle / tau);
}
// The tank side an engine's selector draws from: 0 left, 1 right, -1 none.
int selector_side(double sel) {
    if (sel == 2.0 || sel == 4.0)
        return 0;
    if (sel == 3.0 || sel == 5.0)
        return 1;
    return -1;
}
}  // namespace

double Aircraft::n1_from_n2(double n2) {
    if (n2 <= 0.0)
        return 0.0;
    if (n2 <= kIdleN2) {
        const double r = n2 / kIdleN2;
        return 30.0 * r * r;
    }
    return 30.0 + (n2 - kIdleN2) / (100.0 - kIdleN2) * 70.0;
}

double Aircraft::fuel_flow(double n1) {
    const double x = std::max(0.0, (n1 - 30.0) / 70.0);
    return 800.0 + 5200.0 * x * x;
}

double Aircraft::thrust(double n1) {
    const double x = std::clamp((n1 - 20.0) / 80.0, 0.0, 1.0);
    return 14500.0 * std::pow(x, 1.6);
}

void Aircraft::step_engines(Host& h) {
    using namespace tok;
    const bool ground = h.token(kOnGround) == 1.0;
    const double ias = std::max(0.0, h.token(kIas));
    const double oat = h.token(kOat);
    for (int s = 0; s < 2; ++s) {
        const EngineTokens& t = kEng[s];
        Engine& e = eng_[s];
        const int side = selector_side(h.token(t.selector));
        const bool fuel = h.token(t.fuel_lever) >= 0.5 && side >= 0 && side_fuel_gal(h, side) > 0.0 &&
                          h.token(t.failed) < 0.5;
        double n2 = std::clamp(h.token(t.n2), 0.0, 110.0);
        if (e.burning && !fuel)
            e.burning = false;
        if (!e.burning && e.cranking && fuel && n2 >= kLightOffN2)
            e.burning = true;
        if (e.burning) {
            const double thr = std::clamp(std::fabs(h.token(t.throttle)) / 16384.0, 0.0, 1.0);
            const double target = kIdleN2 + (100.0 - kIdleN2) * thr;
            if (n2 < 0.97 * kIdleN2)
                n2 += 1.8 * kCycle;  // light-off acceleration, starter or not
            else
                n2 = n2 + std::clamp((target - n2) / 2.5, -6.0, 6.0) * kCycle;
        } else {
            const double windmill = ground ? 0.0 : ias / 10.0;
            if (e.cranking && n2 <= kStarterN2)
                n2 = std::min(kStarterN2, n2 + 2.5 * kCycle);
            else if (n2 > windmill)
                n2 = lag(n2, windmill, 8.0);
            else
                n2 = lag(n2, windmill, 3.0);
            if (n2 < 0.01 && windmill == 0.0)
                n2 = 0.0;
        }
        e.cranking = false;
        const double n1 = n1_from_n2(n2);
        h.set_token(t.n2, n2);
        h.set_token(t.n1, n1);
        const double egt = e.burning ? 420.0 + 4.5 * (n1 - 30.0) : oat;
        h.set_token(t.egt, rankine(lag(celsius(h.token(t.egt)), egt, e.burning ? 3.0 : 20.0)));
        h.set_token(t.ff, e.burning ? fuel_flow(n1) : 0.0);
        const double press =
            4000.0 * std::min(n2 / kIdleN2, 1.0) + 600.0 * std::max(0.0, (n2 - kIdleN2) / 38.0);
        h.set_token(t.oil_press, lag(h.token(t.oil_press), press, 1.0));
        // Oil stays between 6 and 76 degC: it also gives the fuel temperature.
        const double oil = std::clamp(oat + (72.0 - oat) * std::min(n2 / kIdleN2, 1.0), 6.0, 76.0);
        h.set_token(t.oil_temp, rankine(lag(celsius(h.token(t.oil_temp)), oil, 90.0)));
    }
}

// Each burning engine draws its flow from the side its selector names, the
// main tank first, then the auxiliary.
void Aircraft::step_fuel(Host& h) {
    using namespace tok;
    const double lb_per_gal = std::max(1.0, h.token(kFuelWeight));
    for (int s = 0; s < 2; ++s) {
        const EngineTokens& t = kEng[s];
        const int side = selector_side(h.token(t.selector));
        if (!eng_[s].burning || side < 0)
            continue;
        double gal = h.token(t.ff) / 3600.0 * kCycle / lb_per_gal;
        for (Id tank :
             side == 0 ? std::array<Id, 2>{kTankLA, kTankLB} : std::array<Id, 2>{kTankRA, kTankRB}) {
            const double cap = h.token(tank + 1);
            if (cap <= 0.0 || gal <= 0.0)
                continue;
            const double have = std::max(0.0, h.token(tank)) / kFull * cap;
            const double take = std::min(have, gal);
            gal -= take;
            h.set_token(tank, (have - take) / cap * kFull);
        }
    }
}

}  // namespace kestrane::host::model
