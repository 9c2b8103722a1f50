// Rolling digit drums (radio frequencies, transponder code, EPR reference):
// a drum turns toward its target digit a quarter of a digit per draw, settles
// on the digit once close, and rolls the short way between its top digit and 0.
#pragma once

#include "frame/gauge_abi.h"

namespace kestrane {

inline constexpr f64 kDrumStep = 0.25;  // a quarter digit per draw
inline constexpr f64 kDrumSnap = 0.2;   // closer than this, the drum settles on its digit

// One drum: the position shown (the moving image's value, in digits) and the
// digit it turns to. `positions` is the number of digits on the drum (2, 4 or
// 10); the top digit is positions - 1.
struct Drum {
    f64 pos;
    f64 target;
    i32 positions;
};

// Where a drum at `pos` stands after one more draw toward `target`.
f64 drum_roll(f64 pos, f64 target, i32 positions);

// Moves `d` by one draw and returns its new position, kept on the strip
// (0 up to `positions`, the top digit rolled fully over).
f64 drum_step(Drum& d);

// Aims `d` at a digit read from the host: NaN aims at 0, and a digit off the
// strip (a bad BCD nibble, a frequency out of band) at its nearest end.
void drum_aim(Drum& d, f64 digit);

// The x value callback of a drum: drums move along y only.
inline f64 KCALL drum_fixed_x(Element*) {
    return 1.0;
}

}  // namespace kestrane
