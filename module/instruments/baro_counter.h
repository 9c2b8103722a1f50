// Four-digit counters of the altimeter and the altitude-alert selector
// (barometric setting, selected altitude): each digit is a drum of one digit
// strip rolling toward its digit a quarter of a digit per draw.
#pragma once

#include "frame/drum.h"
#include "frame/gauge.h"

namespace kestrane::counter {

inline f64 whole(f64 v) {
    return static_cast<f64>(trunc_to<i32>(v));
}

// Thousands, hundreds, tens and units of v; the units keep v's fraction
// (1013.25 gives 1, 0, 1, 3.25).
inline void split4(f64 v, f64 (&digit)[4]) {
    if (!(v == v))
        v = 0.0;
    const f64 a = whole(v / 1000.0);
    const f64 b = whole((v - 1000.0 * a) / 100.0);
    const f64 c = whole((v - 1000.0 * a - 100.0 * b) / 10.0);
    digit[0] = a;
    digit[1] = b;
    digit[2] = c;
    digit[3] = v - 1000.0 * a - 100.0 * b - 10.0 * c;
}

// One digit drum of a counter, starting at 0.
constexpr Drum digit_drum() {
    return Drum{0.0, 0.0, 10};
}

// Sets the targets of four drums from a digit split.
inline void aim(Drum* drums, const f64 (&digit)[4]) {
    for (int i = 0; i < 4; ++i)
        drums[i].target = digit[i];
}

// Drums move along y only.
inline f64 KCALL across(Element*) {
    return 1.0;
}

inline constexpr u32 kDrumFlags = 0x4003;
inline constexpr u32 kNeedleFlags = 0x4003;

// Each draw rolls the drum one step.
template <Drum* D>
f64 KCALL roll(Element*) {
    return drum_step(*D);
}

// A digit of a counter: a moving image of the digit strip.
template <Drum* D>
constexpr def::ElementDecl digit(u32 bitmap, i32 x, i32 y) {
    return def::moving(bitmap, x, y, kDrumFlags, across, roll<D>, 0, 1, 0, 10);
}

}  // namespace kestrane::counter
