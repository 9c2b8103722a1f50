// Reference, rotation, decision and approach speeds from the aircraft's total
// weight and flap angle.
#pragma once

#include "frame/gauge_abi.h"

namespace kestrane::ias {

struct VSpeeds {
    f64 ref;  // reference speed, knots
    f64 vr;   // rotation
    f64 v1;   // decision
    f64 app;  // approach
};

// `weight` in kilograms, `flaps` in degrees; `airbrakes_in` when the airbrakes
// are at or below their retracted position (adds 5 knots on approach with
// flaps 35..39 when they are not).
constexpr VSpeeds v_speeds(f64 weight, f64 flaps, bool airbrakes_in) {
    VSpeeds s{};
    s.ref = (weight / 1000.0 - 40.0) * 1.4375 + 116.5 + 3.0;
    f64 vr_add = 5.0, app_add = -5.0;
    if (flaps <= 4.0) {
        vr_add = 15.0;
        app_add = 15.0;
    } else if (flaps <= 9.0) {
        vr_add = 9.0;
        app_add = 15.0;
    } else if (flaps <= 19.0) {
        app_add = 10.0;
    } else if (flaps <= 29.0) {
        app_add = 4.0;
    } else if (flaps <= 34.0) {
        app_add = 2.0;
    } else if (flaps <= 39.0) {
        app_add = airbrakes_in ? 0.0 : 5.0;
    }
    s.vr = s.ref + vr_add;
    s.app = s.ref + app_add;
    s.v1 = s.vr - 10.0;
    return s;
}

}  // namespace kestrane::ias
