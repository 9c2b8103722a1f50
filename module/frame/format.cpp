#include "frame/format.h"

#include <cmath>
#include <cstdint>
#include <cstdio>

namespace kestrane {

namespace {

void copy_out(char* out, std::size_t size, const char* text, std::size_t length) {
    if (out == nullptr || size == 0)
        return;
    const std::size_t n = length < size - 1 ? length : size - 1;
    for (std::size_t i = 0; i < n; ++i)
        out[i] = text[i];
    out[n] = '\0';
}

// Digits of v, most significant first, after `at` in buf; returns the new end.
std::size_t put_digits(char* buf, std::size_t at, std::uint64_t v) {
    char rev[20];
    std::size_t n = 0;
    do {
        rev[n++] = static_cast<char>('0' + v % 10);
        v /= 10;
    } while (v != 0);
    while (n > 0)
        buf[at++] = rev[--n];
    return at;
}

}  // namespace

void format_int(char* out, std::size_t size, int value, int width) {
    char buf[48];
    char digits[24];
    const bool negative = value < 0;
    // magnitude without overflow at INT_MIN
    const std::uint64_t magnitude = negative ? static_cast<std::uint64_t>(-(static_cast<std::int64_t>(value)))
                                             : static_cast<std::uint64_t>(value);
    std::size_t nd = put_digits(digits, 0, magnitude);
    const std::size_t length = nd + (negative ? 1 : 0);
    std::size_t at = 0;
    for (std::size_t pad = length; pad < static_cast<std::size_t>(width < 0 ? 0 : width) && at < 24; ++pad)
        buf[at++] = ' ';
    if (negative)
        buf[at++] = '-';
    for (std::size_t i = 0; i < nd; ++i)
        buf[at++] = digits[i];
    copy_out(out, size, buf, at);
}

void format_fixed6(char* out, std::size_t size, f64 value) {
    const f64 a = std::fabs(value);
    // NaN, infinities and whole parts beyond 2^53 go to the C library.
    if (!(a < 9007199254740992.0)) {
        if (out != nullptr && size > 0)
            std::snprintf(out, size, "%1.6f", value);
        return;
    }
    std::uint64_t whole = static_cast<std::uint64_t>(a);
    const f64 fraction = a - static_cast<f64>(whole);  // exact
    // millionths, off the exact value by at most 2^-33: round it unless it
    // lies next to a half, where only exact arithmetic can tell
    const f64 scaled = fraction * 1e6;
    const f64 below = std::floor(scaled);
    const f64 rest = scaled - below;
    if (std::fabs(rest - 0.5) < 1e-6) {
        if (out != nullptr && size > 0)
            std::snprintf(out, size, "%1.6f", value);
        return;
    }
    std::uint64_t millionths = static_cast<std::uint64_t>(below) + (rest > 0.5 ? 1 : 0);
    if (millionths >= 1000000) {
        millionths -= 1000000;
        ++whole;
    }
    char buf[40];
    std::size_t at = 0;
    if (std::signbit(value))
        buf[at++] = '-';
    at = put_digits(buf, at, whole);
    buf[at++] = '.';
    for (std::uint64_t scale = 100000; scale != 0; scale /= 10)
        buf[at++] = static_cast<char>('0' + (millionths / scale) % 10);
    copy_out(out, size, buf, at);
}

}  // namespace kestrane
