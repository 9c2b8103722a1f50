// Airspeed indicator: V-speeds by weight and flaps, and the bug knob rules.
#include <gtest/gtest.h>

#include "instruments/ias_dial.h"
#include "instruments/ias_speeds.h"

namespace {
using namespace kestrane;
using namespace kestrane::ias;

TEST(VSpeeds, ReferenceFromWeight) {
    const VSpeeds s = v_speeds(50000.0, 15.0, true);
    EXPECT_DOUBLE_EQ(s.ref, 133.875);
    EXPECT_DOUBLE_EQ(s.vr, 138.875);
    EXPECT_DOUBLE_EQ(s.v1, 128.875);
    EXPECT_DOUBLE_EQ(s.app, 143.875);
    EXPECT_DOUBLE_EQ(v_speeds(40000.0, 0.0, true).ref, 119.5);
}

// Each band's upper edge belongs to it; just above it the next band applies.
TEST(VSpeeds, FlapBandEdges) {
    struct Band {
        f64 flaps, vr_add, app_add;
    };
    const Band bands[] = {{0, 15, 15},  {4, 15, 15},  {4.01, 9, 15},  {9, 9, 15},   {9.5, 5, 10},
                          {19, 5, 10},  {19.5, 5, 4}, {29, 5, 4},     {29.5, 5, 2}, {34, 5, 2},
                          {34.5, 5, 0}, {39, 5, 0},   {39.01, 5, -5}, {45, 5, -5}};
    for (const Band& b : bands) {
        const VSpeeds s = v_speeds(40000.0, b.flaps, true);
        EXPECT_DOUBLE_EQ(s.vr - s.ref, b.vr_add) << "flaps " << b.flaps;
        EXPECT_DOUBLE_EQ(s.app - s.ref, b.app_add) << "flaps " << b.flaps;
        EXPECT_DOUBLE_EQ(s.v1, s.vr - 10.0);
    }
}

// Airbrakes out only matter with flaps 35..39.
TEST(VSpeeds, AirbrakesOutOnApproach) {
    EXPECT_DOUBLE_EQ(v_speeds(40000.0, 37.0, false).app, 124.5);
    EXPECT_DOUBLE_EQ(v_speeds(40000.0, 37.0, true).app, 119.5);
    EXPECT_DOUBLE_EQ(v_speeds(40000.0, 30.0, false).app, 121.5);
    EXPECT_DOUBLE_EQ(v_speeds(40000.0, 40.0, false).app, 114.5);
}

TEST(Bugs, RaisingBug1PushesBug2WithinThreeKnots) {
    u32 b1 = 119, b2 = 122;
    bug_1_up(b1, b2);
    EXPECT_EQ(b1, 120u);
    EXPECT_EQ(b2, 123u);
    b2 = 124;
    bug_1_up(b1, b2);
    EXPECT_EQ(b1, 121u);
    EXPECT_EQ(b2, 124u);
    // the stop at 247 also pulls a bug set above it back
    b1 = 247;
    bug_1_up(b1, b2);
    EXPECT_EQ(b1, 247u);
    b1 = 250;
    bug_1_up(b1, b2);
    EXPECT_EQ(b1, 247u);
    EXPECT_EQ(b2, 124u);
}

TEST(Bugs, LoweringBug2PushesBug1AndStopsAt83) {
    u32 b1 = 81, b2 = 84;
    bug_2_down(b1, b2);
    EXPECT_EQ(b2, 83u);
    EXPECT_EQ(b1, 80u);
    bug_2_down(b1, b2);
    EXPECT_EQ(b2, 83u);
    EXPECT_EQ(b1, 80u);
    b1 = 100;
    b2 = 104;
    bug_2_down(b1, b2);
    EXPECT_EQ(b1, 100u);
    EXPECT_EQ(b2, 103u);
    b2 = 0;  // bugs start at 0
    bug_2_down(b1, b2);
    EXPECT_EQ(b2, 83u);
}

TEST(Bugs, OuterStops) {
    u32 b1 = 0, b2 = 249;
    bug_1_down(b1);
    EXPECT_EQ(b1, 80u);
    b1 = 81;
    bug_1_down(b1);
    bug_1_down(b1);
    EXPECT_EQ(b1, 80u);
    bug_2_up(b2);
    bug_2_up(b2);
    EXPECT_EQ(b2, 250u);
}
}  // namespace
