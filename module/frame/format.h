// Text of the string elements, written as the C library's printf would but
// without its cost on every draw. Both write at most size - 1 characters and
// a terminating zero, cutting the text as snprintf does.
#pragma once

#include <cstddef>

#include "frame/gauge_abi.h"

namespace kestrane {

// "%Nd": the value right-aligned in at least `width` characters.
void format_int(char* out, std::size_t size, int value, int width);

// "%1.6f": sign, whole part, point and six decimals, rounded to nearest
// (ties to even) from the exact value of the double.
void format_fixed6(char* out, std::size_t size, f64 value);

}  // namespace kestrane
