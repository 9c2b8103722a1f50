// The failures panel's presets, applied each cycle by the panel's callback.
#pragma once

namespace kestrane::failures {

// Ready to fly: doors shut, every switch set and both engines started.
void ready_preset();
// Cold and dark, applied once.
void cold_preset();
// Failures cleared, switches set and engines started; stays on until cleared.
void reset_preset();
// Electrical network put back on line.
void elec_preset();
// Servo selector moved to its back-up position during a green fluid loss.
void servo_preset();

}  // namespace kestrane::failures
