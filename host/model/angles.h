// Angles in degrees, as the aircraft model turns and compares headings.
#pragma once

#include <cmath>

namespace kestrane::host::model {

inline constexpr double kDeg = 3.14159265358979323846 / 180.0;

// Into (-180, 180].
inline double wrap180(double a) {
    a = std::fmod(a, 360.0);
    if (a > 180.0)
        a -= 360.0;
    if (a <= -180.0)
        a += 360.0;
    return a;
}

// Into [0, 360).
inline double wrap360(double a) {
    a = std::fmod(a, 360.0);
    return a < 0.0 ? a + 360.0 : a;
}

}  // namespace kestrane::host::model
