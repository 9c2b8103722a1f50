// Conversions from host doubles to whole numbers: truncate toward zero,
// saturate at the type's range, NaN becomes 0. Floating-point targets
// saturate at their largest finite value.
#pragma once

#include <limits>

#include "frame/gauge_abi.h"

namespace kestrane {

template <class T>
constexpr T trunc_to(f64 v) {
    if constexpr (std::numeric_limits<T>::is_integer) {
        constexpr f64 lo = static_cast<f64>(std::numeric_limits<T>::min());
        constexpr f64 hi = static_cast<f64>(std::numeric_limits<T>::max());
        if (v > lo && v < hi)  // the usual case first; NaN fails both
            return static_cast<T>(v);
        if (!(v == v))
            return T{0};
        return v <= lo ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
    } else {
        constexpr f64 hi = static_cast<f64>(std::numeric_limits<T>::max());
        if (v >= -hi && v <= hi)
            return static_cast<T>(v);
        if (!(v == v))
            return T{0};
        return v > hi ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
    }
}

// A host-derived quantity kept finite: NaN becomes 0, infinities the
// largest finite value of their sign.
constexpr f64 bounded(f64 v) {
    return trunc_to<f64>(v);
}

}  // namespace kestrane
