// Arithmetic of the HSI and the navigation indicators: knob steps, DME and
// course digits, bearing needles, glide-slope pointer. Plain functions of
// their inputs, shared by the HSI, the DME indicator, the RMIs and the
// overview panel's mini HSI.
#pragma once

#include <cstdint>

#include "frame/convert.h"
#include "frame/gauge_abi.h"

namespace kestrane::nav {

// Selected heading after one click of the heading knob (step -10, -1, +1 or
// +10). 350 + 10 gives 360, as the counter then shows.
constexpr i32 heading_step(i32 heading, i32 step) {
    const std::int64_t bug = heading;  // no overflow whatever the field holds
    switch (step) {
        case -1:
            return static_cast<i32>(bug == 0 ? 359 : bug - 1);
        case 1:
            return static_cast<i32>(bug == 359 ? 0 : bug + 1);
        case -10:
            return static_cast<i32>(bug < 10 ? 350 + bug : bug - 10);
        case 10:
            return static_cast<i32>(bug < 351 ? bug + 10 : bug - 350);
        default:
            return heading;
    }
}

// Course sent to the host for one click of the course knob; `course` is the
// whole-degree course, `obs` the host's course as it reads now. Wide, so that
// no course overflows; the event carries the low 32 bits.
constexpr std::int64_t course_step(std::int64_t course, f64 obs, i32 step) {
    switch (step) {
        case -1:
            return obs == 0.0 ? 359 : course - 1;
        case 1:
            return obs == 359.0 ? 0 : course + 1;
        case -10:
            return obs >= 10.0 ? course - 10 : 350 + course;
        case 10:
            return obs <= 350.0 ? course + 10 : course - 350;
        default:
            return course;
    }
}

// Knob image angle after one click: 5 degrees per unit click, 50 per ten.
constexpr u16 knob_step(u16 angle, i32 step) {
    switch (step) {
        case -1:
            return angle < 6 ? 360 : static_cast<u16>(angle - 5);
        case 1:
            return angle >= 355 ? 0 : static_cast<u16>(angle + 5);
        case -10:
            return angle < 51 ? 360 : static_cast<u16>(angle - 50);
        case 10:
            return angle >= 300 ? 0 : static_cast<u16>(angle + 50);
        default:
            return angle;
    }
}

// Three drum values of a DME distance. The hundreds and tens drums roll into
// their next digit over the last hundredth and tenth; the units drum follows
// the distance.
struct DmeDigits {
    f64 hundreds = 0.0, tens = 0.0, units = 0.0;
};

constexpr DmeDigits dme_digits(f64 d) {
    DmeDigits r{};
    const f64 h = static_cast<f64>(trunc_to<i32>(d / 100.0));
    const f64 t = static_cast<f64>(trunc_to<i32>((d - 100.0 * h) / 10.0));
    const f64 u = d - 100.0 * h - 10.0 * t;
    const f64 hx = d / 100.0;
    const f64 tx = (d - 100.0 * h) / 10.0;
    r.hundreds = hx - h <= 0.99 ? h : h + (hx - 0.99 - h) * 100.0;
    if (hx > 9.999)
        r.hundreds = 0.0;
    r.tens = tx - t <= 0.9 ? t : t + (tx - 0.9 - t) * 10.0;
    r.units = u > 9.999 ? 0.0 : u;
    return r;
}

// Digits the course counter turns to: hundreds, tens and the remainder.
constexpr DmeDigits course_digits(f64 c) {
    DmeDigits r{};
    r.hundreds = static_cast<f64>(trunc_to<i32>(c / 100.0));
    r.tens = static_cast<f64>(trunc_to<i32>((c - 100.0 * r.hundreds) / 10.0));
    r.units = c - 100.0 * r.hundreds - 10.0 * r.tens;
    return r;
}

// RMI needle angle from a bearing: the card's zero sits at 90 degrees.
constexpr f64 rmi_needle(f64 bearing) {
    return bearing < 90.0 ? bearing + 270.0 : bearing - 90.0;
}

inline constexpr f64 kGsTop = 11.0;
inline constexpr f64 kGsParked = -1.0;

// Glide-slope pointer after one cycle: toward the deviation's position by one
// step at most, settling on it within one step; parked below the scale when
// there is no glide slope.
constexpr f64 gs_pointer_step(f64 pointer, bool tracking, f64 deviation) {
    if (!tracking)
        return pointer - 1.0 > kGsParked ? pointer - 1.0 : kGsParked;
    f64 target = (deviation + 120.0) / 20.0;
    if (!(target >= 0.0))
        target = 0.0;
    if (target > kGsTop)
        target = kGsTop;
    if (!(pointer == pointer))
        pointer = kGsParked;
    if (pointer >= target - 1.0 && pointer <= target + 1.0)
        return target;
    return pointer < target ? pointer + 1.0 : pointer - 1.0;
}

}  // namespace kestrane::nav
