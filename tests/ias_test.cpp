// V-speeds: each flap band's upper edge belongs to it.
#include <gtest/gtest.h>

#include "instruments/ias_speeds.h"

namespace {
using namespace kestrane;
using kestrane::ias::v_speeds;

TEST(VSpeeds, FlapBandEdges) {
    struct Band {
        f64 flaps, vr_add, app_add;
    };
    const Band bands[] = {{4, 15, 15}, {4.01, 9, 15}, {9, 9, 15}, {9.5, 5, 10}, {19, 5, 10}, {19.5, 5, 4},
                          {29, 5, 4},  {29.5, 5, 2},  {34, 5, 2}, {34.5, 5, 0}, {39, 5, 0},  {39.01, 5, -5}};
    for (const Band& b : bands) {
        const auto s = v_speeds(40000.0, b.flaps, true);
        EXPECT_DOUBLE_EQ(s.ref, 119.5);
        EXPECT_DOUBLE_EQ(s.vr - s.ref, b.vr_add) << "flaps " << b.flaps;
        EXPECT_DOUBLE_EQ(s.app - s.ref, b.app_add) << "flaps " << b.flaps;
        EXPECT_DOUBLE_EQ(s.v1, s.vr - 10.0);
    }
    // airbrakes out add 5 knots on approach only in the 35..39 band
    EXPECT_DOUBLE_EQ(v_speeds(40000.0, 39.0, false).app, 124.5);
    EXPECT_DOUBLE_EQ(v_speeds(40000.0, 34.0, false).app, 121.5);
    EXPECT_DOUBLE_EQ(v_speeds(40000.0, 40.0, false).app, 114.5);
}
}  // namespace
