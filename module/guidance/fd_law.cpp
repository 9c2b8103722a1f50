#include "guidance/fd_law.h"

#include <cmath>

#include "frame/convert.h"

namespace kestrane::fd {

f64 wrap180(f64 d) {
    d = std::fmod(d, 360.0);
    if (d > 180.0)
        d -= 360.0;
    else if (d < -180.0)
        d += 360.0;
    return d;
}

namespace {
// Band value for e: below[i] while e < -edge[i] (outermost first), above[i]
// while e > edge[i]; 0 inside -2..2.
constexpr f64 kEdges[5] = {15.0, 10.0, 5.0, 3.0, 2.0};

f64 band(f64 e, const f64 (&values)[5]) {
    for (int i = 0; i < 5; ++i) {
        if (e < -kEdges[i])
            return -values[i];
    }
    for (int i = 0; i < 5; ++i) {
        if (e > kEdges[i])
            return values[i];
    }
    return 0.0;
}
}  // namespace

f64 hdg_band(f64 e) {
    static constexpr f64 kHdg[5] = {25.0, 15.0, 10.0, 5.0, 1.0};
    return band(e, kHdg);
}

f64 nav_band(f64 e) {
    static constexpr f64 kNav[5] = {25.0, 10.0, 5.0, 2.0, 1.0};
    return band(e, kNav);
}

f64 drift_course(f64 course, f64 a, f64 b, f64 previous) {
    if (-1.0 < b && b < 1.0)
        return course;
    f64 v = a / std::sqrt(a * a + b * b);
    if (v > 1.0)
        v = 1.0;
    else if (v < -1.0)
        v = -1.0;
    const f64 theta = (2.0 * std::atan(1.0) + std::atan(-v / std::sqrt(1.0 - v * v))) * 180.0 / 3.1415927;
    if (b >= 1.0)
        return course < theta ? 360.0 - (theta - course) : course - theta;
    if (b <= -1.0)
        return course >= 360.0 - theta ? theta - (360.0 - course) : course + theta;
    return previous;
}

f64 gs_evaluate(f64 d, f64 nominal) {
    if (d >= 15.0)
        return -1500.0;
    if (d > -15.0)
        return nominal - 10.0 * d;
    return 0.0;
}

Thresholds thresholds(bool ils, f64 station, u8 h1, u8 h2) {
    Thresholds t{};
    if (ils)
        t.s[0] = 99.0;
    else
        t.s[0] = station <= 300.0 ? station / 15.0 : station / 30.0 + 30.0;
    t.s[1] = t.s[0] / 3.0;
    t.s[2] = t.s[1] / 1.5;
    t.s[3] = t.s[2] / 1.5;
    t.s[4] = h2 == 2 ? t.s[3] / 2.5 : t.s[3] / 2.0;
    t.s[5] = h1 == 2 ? t.s[4] / 2.0 : t.s[4] / 1.5;
    return t;
}

namespace {
// X: from -> to; otherwise, unless X already holds `keep`, X = other.
void hysteresis(u8& x, u8 from, u8 to, u8 other) {
    if (x == from)
        x = to;
    else if (x != to)
        x = other;
}
}  // namespace

i32 intercept_angle(f64 d, const Thresholds& t, u8& h1, u8& h2) {
    const f64* s = t.s;
    auto within = [d](f64 lo, f64 hi) { return (lo < d && d <= hi) || (-hi <= d && d < -lo); };
    if (within(s[1], s[0]))
        return 20;
    if (within(s[2], s[1]))
        return 15;
    if (within(s[3], s[2])) {
        h1 = 0;
        return 10;
    }
    if (within(s[4], s[3])) {
        hysteresis(h2, 1, 2, 0);
        return 5;
    }
    if (within(s[5], s[4])) {
        hysteresis(h1, 1, 2, 0);
        hysteresis(h2, 2, 3, 1);
        return 1;
    }
    if (within(0.0, s[5]))
        hysteresis(h1, 2, 3, 1);
    return 0;
}

i32 intercept_heading(f64 d, f64 s0, f64 course, i32 angle, f64 heading) {
    const f64 a = angle;
    if (-s0 <= d && d < 0.0)
        return trunc_to<i32>(a <= course ? course - a : 360.0 - a + course);
    if (0.0 < d && d <= s0)
        return trunc_to<i32>(course + a <= 360.0 ? course + a : course + a - 360.0);
    return trunc_to<i32>(heading);
}

bool in_course_sector(f64 heading, f64 course) {
    i32 lo = trunc_to<i32>(course - 90.0);
    i32 hi = trunc_to<i32>(course + 90.0);
    if (lo < 0)
        lo += 360;
    if (hi > 360)
        hi -= 360;
    if (lo < hi)
        return lo < heading && heading < hi;
    return heading > lo || heading < hi;
}

namespace {
f64 clamp(f64 v, f64 lo, f64 hi) {
    if (!(v >= lo))
        return lo;
    return v > hi ? hi : v;
}
}  // namespace

void roll_filter(f64& bar, f64 t, u8& state, RollFilter type) {
    const f64 dist = std::fabs(bar - t);
    auto toward = [&](f64 step) { bar += bar < t ? step : -step; };
    auto snap = [&](u8 next) {
        bar = t;
        state = next;
    };
    if (state == 0) {
        if (dist > 1.0)
            toward(1.0);
        else if (type == RollFilter::kNav && dist > 0.1)
            toward(0.05);
        else
            snap(1);
    } else if (state == 1) {
        const f64 band = type == RollFilter::kNav ? 0.01 : 0.05;
        if (dist > band)
            toward(type == RollFilter::kNav ? 0.005 : 0.025);
        else
            snap(1);
    } else {
        if (dist > 0.02)
            toward(0.01);
        else
            snap(1);
    }
    bar = clamp(bar, 1.0, 11.0);
}

void pitch_filter(f64& bar, f64 t, u8& state) {
    if (bar > t + 1.0 && state == 0) {
        bar -= 1.0;
    } else if (bar > t + 0.2) {
        bar -= 0.1;
    } else if (bar < t - 1.0 && state == 0) {
        bar += 1.0;
    } else if (bar < t - 0.2) {
        bar += 0.1;
    } else {
        bar = t;
        state = 1;
    }
    bar = clamp(bar, 0.0, 11.0);
}

f64 adi_bank_step(f64 d, f64 b, bool powered, u8& toppled) {
    if (!powered) {
        toppled = 1;
        if (d < -180.0)
            return 179.9;
        if (-180.0 <= d && d < -120.0)
            return d - 1.0;
        if (-120.0 <= d && d < 58.0)
            return d + 1.0;
        if (62.0 < d && d < 180.0)
            return d - 1.0;
        return 60.0;  // 58..62, at or beyond 180
    }
    if (toppled == 0)
        return b;
    if (-120.0 <= b && b < 58.0) {
        if (d > b + 2.0)
            return d - 1.0;
    } else if (62.0 < b && b < 180.0) {
        if (d < b - 2.0)
            return d + 1.0;
    } else if (-180.0 <= b && b < -120.0) {
        // Erects the long way round, through 180.
        if (d >= 179.9)
            return -180.0;
        if (!(d >= b - 2.0 && d <= -120.0))
            return d + 1.0;
    }
    toppled = 0;
    return b;
}

f64 pitch_step(f64 d, f64 p, bool powered, u8& toppled) {
    if (!powered) {
        toppled = 1;
        if (d > 2.0)
            return d - 1.0;
        if (d < -2.0)
            return d + 1.0;
        return 0.0;
    }
    if (toppled == 0)
        return p;
    if (p > 2.5) {
        if (d < p - 2.0)
            return d + 1.0;
    } else if (p < -2.5) {
        if (d > p + 2.0)
            return d - 1.0;
    } else {
        return d;
    }
    toppled = 0;
    return p;
}

f64 standby_bank_step(f64 d, f64 b, bool powered, u8& toppled) {
    if (!powered) {
        toppled = 1;
        if (-28.0 < d && d <= 150.0)
            return d - 1.0;
        if (150.0 < d && d < 180.0)
            return d + 1.0;
        if (d >= 180.0)
            return -180.0;
        if (-180.0 <= d && d < -32.0)
            return d + 1.0;
        return -30.0;  // -32..-28, below -180
    }
    if (toppled == 0)
        return b;
    if (!(-32.5 <= b && b <= -27.5)) {
        if (d < b - 2.0)
            return d + 1.0;
        if (d > b + 2.0)
            return d - 1.0;
    }
    toppled = 0;
    return b;
}

}  // namespace kestrane::fd
