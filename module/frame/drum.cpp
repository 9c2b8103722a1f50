#include "frame/drum.h"

namespace kestrane {

f64 drum_roll(f64 pos, f64 target, i32 positions) {
    const f64 n = static_cast<f64>(positions);
    const f64 near_top = n - 1.1;  // 8.9 on a ten-digit drum: at the top digit
    const f64 wrap = n - 0.1;      // 9.9: the top digit half rolled over to 0
    const bool settled =
        target == 0.0 ? pos < kDrumSnap : pos > target - kDrumSnap && pos < target + kDrumSnap;
    if (settled)
        return target;
    if (pos < target - kDrumSnap) {
        // from 0 to the top digit: back over the top instead of through every digit
        if (pos < kDrumSnap && target > near_top)
            return wrap;
        return pos + kDrumStep;
    }
    if (pos > target + kDrumSnap) {
        // from the top digit to 0: on over the top, then the strip starts again at 0
        if (pos > near_top && target < kDrumSnap)
            return pos >= wrap ? 0.0 : pos + kDrumStep;
        return pos - kDrumStep;
    }
    return pos;
}

f64 drum_step(Drum& d) {
    const f64 top = static_cast<f64>(d.positions);
    if (d.pos == d.target && d.pos >= 0.0 && d.pos <= top)
        return d.pos;  // settled on its digit: most drums, most draws
    f64 pos = drum_roll(d.pos, d.target, d.positions);
    if (!(pos >= 0.0))
        pos = 0.0;
    if (pos > top)
        pos = top;
    d.pos = pos;
    return pos;
}

void drum_aim(Drum& d, f64 digit) {
    const f64 last = static_cast<f64>(d.positions) - 0.1;  // the wrap point
    if (!(digit >= 0.0))
        digit = 0.0;
    if (digit > last)
        digit = last;
    d.target = digit;
}

}  // namespace kestrane
