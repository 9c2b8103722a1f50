// Host doubles to whole numbers: truncation toward zero inside the range,
// saturation outside it, NaN to 0; and quantities kept finite.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/convert.h"

namespace {

using namespace kestrane;
constexpr f64 kInf = std::numeric_limits<f64>::infinity();
constexpr f64 kNaN = std::numeric_limits<f64>::quiet_NaN();

TEST(TruncTo, TruncatesTowardZeroInsideTheRange) {
    EXPECT_EQ(trunc_to<i32>(2.9), 2);
    EXPECT_EQ(trunc_to<i32>(-2.9), -2);
    EXPECT_EQ(trunc_to<i32>(-0.5), 0);
    EXPECT_EQ(trunc_to<u8>(255.9), 255);
    EXPECT_EQ(trunc_to<i16>(-32768.5), -32768);
    EXPECT_EQ(trunc_to<u32>(4294967295.5), 4294967295u);
    EXPECT_EQ(trunc_to<i32>(2147483646.9), 2147483646);
}

TEST(TruncTo, SaturatesOutsideTheRangeAndMapsNaNToZero) {
    EXPECT_EQ(trunc_to<i32>(2147483648.0), std::numeric_limits<i32>::max());
    EXPECT_EQ(trunc_to<i32>(-2147483649.0), std::numeric_limits<i32>::min());
    EXPECT_EQ(trunc_to<u8>(256.0), 255);
    EXPECT_EQ(trunc_to<u8>(-0.5), 0);  // truncates to 0 before any saturation
    EXPECT_EQ(trunc_to<u8>(-1.0), 0);
    EXPECT_EQ(trunc_to<u32>(-1e300), 0u);
    EXPECT_EQ(trunc_to<i8>(1e300), 127);
    for (f64 v : {kInf, -kInf, kNaN}) {
        EXPECT_EQ(trunc_to<i32>(v), v > 0 ? std::numeric_limits<i32>::max()
                                          : v < 0 ? std::numeric_limits<i32>::min() : 0);
        EXPECT_EQ(trunc_to<u16>(v), v > 0 ? 65535 : 0);
    }
    EXPECT_EQ(trunc_to<i32>(-kNaN), 0);
}

TEST(TruncTo, FloatsSaturateAtTheirLargestFiniteValue) {
    constexpr f32 big = std::numeric_limits<f32>::max();
    EXPECT_EQ(trunc_to<f32>(1e39), big);
    EXPECT_EQ(trunc_to<f32>(-1e39), -big);
    EXPECT_EQ(trunc_to<f32>(kInf), big);
    EXPECT_EQ(trunc_to<f32>(kNaN), 0.0f);
    EXPECT_EQ(trunc_to<f32>(1.5), 1.5f);
    EXPECT_EQ(bounded(-kInf), -std::numeric_limits<f64>::max());
    EXPECT_EQ(bounded(kNaN), 0.0);
    EXPECT_EQ(bounded(-3.25), -3.25);
}

static_assert(trunc_to<i32>(-7.99) == -7, "usable in constant expressions");

}  // namespace
