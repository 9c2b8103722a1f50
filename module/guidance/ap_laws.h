// The autopilot's laws, run by the callback of kestrane ap_jm47: what one
// cycle knows of the host, and the vertical, turn and rudder laws.
#pragma once

#include "guidance/ap_panel.h"

namespace kestrane::ap {

// Host values of one cycle.
struct Cycle {
    f64 engaged_raw;  // token 103
    f64 hold_104, hold_105, hold_106, hold_108, hold_111, hold_112;
    f64 bank_0_360;  // token 79
    f64 on_ground;   // token 60
    f64 vs_raw;      // token 65, 1/256 m/s
    f64 vs;          // ft/min
    bool engaged;
};

// Pitch, degrees nose-up.
f64 pitch_now();

// Pitch hold, altitude hold or fine altitude hold, the first that applies.
void vertical_law(GaugeHeader* g, const Cycle& c);
// The pitch-hold law applies (the second controller hides its ALT lights then).
bool pitch_law_applies(f64 on_ground);
// Glide-slope tracking and the rollout push.
void glide_slope_law(GaugeHeader* g, const Cycle& c);
// Aileron bias for a bank command within -30..30; 0 keeps the present bias.
i32 roll_bias(i32 bank_cmd, i32 present);
// The one aileron value of the turn law.
i32 turn_aileron(i32 bank, i32 cmd, i32 bias);
// Rudder coordination with the ball while the host does not coordinate.
void rudder_coordination();
// One rudder step toward centre.
i32 rudder_to_centre(i32 r);

}  // namespace kestrane::ap
