// Flight-director laws and attitude gyro steps: plain functions of numbers,
// no host and no shared state, so the computer and the tests share them.
#pragma once

#include "frame/gauge_abi.h"

namespace kestrane::fd {

// Difference of two headings brought into -180..180.
f64 wrap180(f64 d);

// Roll-command bands of the heading error: heading select and intercept.
f64 hdg_band(f64 e);
f64 nav_band(f64 e);

// Drift-corrected course from the selected course and the velocity
// components along (a) and across (b) the aircraft's axis.
f64 drift_course(f64 course, f64 a, f64 b, f64 previous);

// Vertical-speed target on the glide slope for deviation d, N the nominal rate.
f64 gs_evaluate(f64 d, f64 nominal);

// Deviation thresholds S0..S5 of the intercept-angle table.
struct Thresholds {
    f64 s[6];
};
Thresholds thresholds(bool ils, f64 station, u8 h1, u8 h2);

// Intercept angle for course deviation d; moves the two hysteresis states.
i32 intercept_angle(f64 d, const Thresholds& t, u8& h1, u8& h2);
// Intercept heading; `heading` is taken when the deviation is nil or beyond S0.
i32 intercept_heading(f64 d, f64 s0, f64 course, i32 angle, f64 heading);

// True when `heading` lies strictly within 90 degrees of `course`.
bool in_course_sector(f64 heading, f64 course);

// Command-bar filters: one step of the bar toward target t.
enum class RollFilter : u8 { kNav, kHdg };
void roll_filter(f64& bar, f64 t, u8& state, RollFilter type);
void pitch_filter(f64& bar, f64 t, u8& state);
inline f64 bar_target(f64 cmd) {
    return (cmd + 120.0) / 20.0;
}

// Attitude gyros. `toppled` is set while unpowered and cleared by the snap
// back to the real attitude.
f64 adi_bank_step(f64 shown, f64 bank, bool powered, u8& toppled);
f64 pitch_step(f64 shown, f64 pitch, bool powered, u8& toppled);
f64 standby_bank_step(f64 shown, f64 bank, bool powered, u8& toppled);

}  // namespace kestrane::fd
