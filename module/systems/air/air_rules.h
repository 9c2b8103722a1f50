// Rules the bleed, pressurization, air-conditioning and equipment-cooling
// gauges share.
#pragma once

#include "frame/gauge.h"

namespace kestrane::air {

// Temperatures are kept in floats; a snap band is met when the gap is within
// it up to float rounding (21.9 selected against 22 is 0.1 away).
inline constexpr f64 kSnapSlack = 1e-4;

// Moves `v` toward `target` by `step` a cycle; once within `band` it takes the
// target.
inline void approach(f32& v, f64 target, f64 step, f64 band) {
    const f64 cur = static_cast<f64>(v);
    const f64 gap = target - cur;
    if (gap <= band + kSnapSlack && gap >= -band - kSnapSlack)
        v = trunc_to<f32>(target);
    else
        v = trunc_to<f32>(gap > 0.0 ? cur + step : cur - step);
}

// One side's bleed air reaching the packs: valve fully open, with air
// flowing, or flowing below 60 % N2 on an engine now above it.
inline bool side_supply(u8 valve, u8 on, u8 n2_high, u8 low_n2) {
    return valve == 255 && (on == 1 || (n2_high == 1 && low_n2 == 1));
}
inline bool bleed_supply() {
    return side_supply(ac.air_bleed_valve_lh, ac.air_bleed_on_lh, ac.air_n2_high_lh,
                       ac.air_bleed_low_n2_lh) ||
           side_supply(ac.air_bleed_valve_rh, ac.air_bleed_on_rh, ac.air_n2_high_rh, ac.air_bleed_low_n2_rh);
}

// A two-position valve that takes a fixed time to travel: state 0 shut,
// 1 open, 2 moving.
struct TimedValve {
    u8 state;
    i32 end_tick;
    u8 running;
};

// Drives the valve toward `target` (0 or 1): a movement starts when the valve
// is not there and no timer runs, shows 2 until the end tick, then lands.
inline void drive(TimedValve& v, u8 target, f64 now, f64 ticks) {
    if (v.state != target && v.running == 0) {
        v.end_tick = trunc_to<i32>(now + ticks);
        v.running = 1;
    }
    if (v.running == 0)
        return;
    if (now < static_cast<f64>(v.end_tick)) {
        v.state = 2;
    } else {
        v.state = target;
        v.running = 0;
        v.end_tick = 0;
    }
}

}  // namespace kestrane::air
