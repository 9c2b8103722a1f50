// Flight-director laws and gyro steps: band edges, threshold scales, the
// intercept hysteresis, filter rates and the topple and erection paths.
#include "guidance/fd_law.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using namespace kestrane;
using namespace kestrane::fd;

TEST(FdBands, EdgesBelongToTheInnerBandAboveAndOuterBandBelow) {
    const std::vector<std::pair<f64, f64>> hdg = {
        {-15.01, -25}, {-15, -15}, {-10, -10}, {-5, -5}, {-3, -1}, {-2.01, -1}, {-2, 0},    {2, 0},
        {2.01, 1},     {3, 1},     {3.5, 5},   {5, 5},   {10, 10}, {15, 15},    {15.01, 25}};
    for (auto [e, b] : hdg)
        EXPECT_EQ(hdg_band(e), b) << e;
    const std::vector<std::pair<f64, f64>> nav = {{-16, -25}, {-15, -10}, {-10, -5}, {-5, -2},
                                                  {-3, -1},   {0, 0},     {2.5, 1},  {4, 2},
                                                  {6, 5},     {11, 10},   {16, 25}};
    for (auto [e, b] : nav)
        EXPECT_EQ(nav_band(e), b) << e;
}

TEST(FdBands, HeadingDifferenceWrapsTheShortWay) {
    EXPECT_EQ(wrap180(350 - 10), -20);
    EXPECT_EQ(wrap180(10 - 350), 20);
    EXPECT_EQ(wrap180(-540), -180);
}

TEST(FdThresholds, StationScaleAndHysteresisDivisors) {
    Thresholds t = thresholds(false, 150, 0, 0);
    const f64 want[6] = {10, 10 / 3.0, 10 / 4.5, 10 / 6.75, 10 / 13.5, 10 / 20.25};
    for (int i = 0; i < 6; ++i)
        EXPECT_DOUBLE_EQ(t.s[i], want[i]) << i;
    EXPECT_DOUBLE_EQ(thresholds(false, 300, 0, 0).s[0], 20);
    EXPECT_NEAR(thresholds(false, 301, 0, 0).s[0], 40.0333, 1e-4);
    EXPECT_EQ(thresholds(true, -5, 0, 0).s[0], 99);
    Thresholds wide = thresholds(false, 150, 2, 2);
    EXPECT_DOUBLE_EQ(wide.s[4], t.s[3] / 2.5);
    EXPECT_DOUBLE_EQ(wide.s[5], wide.s[4] / 2);
}

TEST(FdIntercept, AnglesAndHysteresisStates) {
    const Thresholds t = thresholds(false, 150, 0, 0);
    u8 h1 = 3, h2 = 3;
    EXPECT_EQ(intercept_angle(2.5, t, h1, h2), 15);
    EXPECT_EQ(intercept_angle(-3.4, t, h1, h2), 20);
    EXPECT_EQ(intercept_angle(10.01, t, h1, h2), 0);
    EXPECT_EQ(h1, 3);
    EXPECT_EQ(intercept_angle(2.0, t, h1, h2), 10);  // clears H1
    EXPECT_EQ(h1, 0);
    EXPECT_EQ(intercept_angle(1.0, t, h1, h2), 5);  // H2 3 -> 0
    EXPECT_EQ(h2, 0);
    EXPECT_EQ(intercept_angle(-0.6, t, h1, h2), 1);  // H1 stays 0, H2 -> 1
    EXPECT_EQ(h1, 0);
    EXPECT_EQ(h2, 1);
    EXPECT_EQ(intercept_angle(0.3, t, h1, h2), 0);  // H1 -> 1
    EXPECT_EQ(h1, 1);
    EXPECT_EQ(intercept_angle(0.6, t, h1, h2), 1);  // H1 1 -> 2, H2 stays 1
    EXPECT_EQ(h1, 2);
    EXPECT_EQ(h2, 1);
    EXPECT_EQ(intercept_angle(0.3, t, h1, h2), 0);  // H1 2 -> 3
    EXPECT_EQ(h1, 3);
    EXPECT_EQ(intercept_angle(0.0, t, h1, h2), 0);
    EXPECT_EQ(intercept_heading(-2.5, 10, 15, 15, 200), 0);
    EXPECT_EQ(intercept_heading(-2.5, 10, 14.9, 15, 200), 359);
    EXPECT_EQ(intercept_heading(2.5, 10, 345, 15, 200), 360);
    EXPECT_EQ(intercept_heading(2.5, 10, 345.5, 15, 200), 0);
    EXPECT_EQ(intercept_heading(0, 10, 345.5, 15, 200.9), 200);
    EXPECT_EQ(intercept_heading(-2.5, -1, 100, 15, 200.9), 200);
}

TEST(FdIntercept, CourseSectorIsStrictAndWraps) {
    EXPECT_TRUE(in_course_sector(359, 10));
    EXPECT_TRUE(in_course_sector(99, 10));
    EXPECT_FALSE(in_course_sector(100, 10));
    EXPECT_FALSE(in_course_sector(280, 10));
    EXPECT_TRUE(in_course_sector(281, 10));
    EXPECT_TRUE(in_course_sector(359.9, 270));
    EXPECT_FALSE(in_course_sector(0, 270));
}

std::vector<f64> roll_path(f64 bar, f64 t, u8 state, RollFilter type, int n) {
    std::vector<f64> seen;
    for (int i = 0; i < n; ++i) {
        roll_filter(bar, t, state, type);
        seen.push_back(bar);
    }
    return seen;
}

TEST(FdFilters, FreshNavFilterHasAMediumStepBeforeTheSnap) {
    const auto nav = roll_path(7.5, 6, 0, RollFilter::kNav, 12);
    EXPECT_DOUBLE_EQ(nav[0], 6.5);
    EXPECT_DOUBLE_EQ(nav[1], 6.45);
    EXPECT_EQ(nav.back(), 6);
    const auto hdg = roll_path(7.5, 6, 0, RollFilter::kHdg, 2);
    EXPECT_EQ(hdg[0], 6.5);
    EXPECT_EQ(hdg[1], 6);
    // Settled: fine steps; re-entered: 0.01 steps for both types.
    EXPECT_DOUBLE_EQ(roll_path(6.1, 6, 1, RollFilter::kNav, 1)[0], 6.095);
    EXPECT_DOUBLE_EQ(roll_path(6.1, 6, 1, RollFilter::kHdg, 1)[0], 6.075);
    EXPECT_EQ(roll_path(6.05, 6, 1, RollFilter::kHdg, 1)[0], 6);
    EXPECT_DOUBLE_EQ(roll_path(6.1, 6, 2, RollFilter::kHdg, 1)[0], 6.09);
    EXPECT_EQ(roll_path(2, -3, 0, RollFilter::kHdg, 1)[0], 1);  // clamped
}

TEST(FdFilters, PitchBarCoarseOnlyUntilSettled) {
    f64 bar = 8;
    u8 g = 0;
    pitch_filter(bar, 6, g);
    EXPECT_EQ(bar, 7);
    pitch_filter(bar, 6, g);
    EXPECT_DOUBLE_EQ(bar, 6.9);
    bar = 6.2;
    pitch_filter(bar, 6, g);
    EXPECT_EQ(bar, 6);
    EXPECT_EQ(g, 1);
    pitch_filter(bar, 9, g);
    EXPECT_DOUBLE_EQ(bar, 6.1);
    bar = 2;
    g = 0;
    pitch_filter(bar, -3, g);
    EXPECT_EQ(bar, 1);
}

TEST(FdGyro, AdiToppleTableAndTheLongWayRound) {
    u8 k = 0;
    const std::vector<std::pair<f64, f64>> topple = {{-181, 179.9},  {-180, -181}, {-121, -122}, {-120, -119},
                                                     {57.5, 58.5},   {58, 60},     {62, 60},     {62.5, 61.5},
                                                     {179.9, 178.9}, {180, 60}};
    for (auto [d, next] : topple)
        EXPECT_DOUBLE_EQ(adi_bank_step(d, 0, false, k), next) << d;
    EXPECT_EQ(k, 1);
    // Erecting to -150 from 60: up through 180, over to -180, snap at -152.
    f64 d = 60;
    int cycles = 0;
    while (k == 1 && cycles < 400) {
        d = adi_bank_step(d, -150, true, k);
        ++cycles;
        if (cycles == 120) {
            EXPECT_EQ(d, 180);
        } else if (cycles == 121) {
            EXPECT_EQ(d, -180);
        }
    }
    EXPECT_EQ(d, -150);
    EXPECT_EQ(cycles, 150);
    k = 1;
    EXPECT_EQ(adi_bank_step(-50, -10, true, k), -10);  // already below: at once
    k = 1;
    EXPECT_EQ(adi_bank_step(10, 200, true, k), 200);  // out of range: at once
}

TEST(FdGyro, StandbyToppleTowardMinus30AndErection) {
    u8 k = 0;
    const std::vector<std::pair<f64, f64>> topple = {{150, 149},   {150.5, 151.5}, {180, -180},
                                                     {-180, -179}, {-32.5, -31.5}, {-32, -30},
                                                     {-28, -30},   {-27.5, -28.5}, {-181, -30}};
    for (auto [d, next] : topple)
        EXPECT_DOUBLE_EQ(standby_bank_step(d, 0, false, k), next) << d;
    EXPECT_EQ(standby_bank_step(-30, -32.5, true, k), -32.5);  // at once near -30
    EXPECT_EQ(k, 0);
    k = 1;
    EXPECT_EQ(standby_bank_step(-30, 0, true, k), -29);
    EXPECT_EQ(standby_bank_step(-2, 0, true, k), 0);
    k = 1;
    EXPECT_EQ(standby_bank_step(30, 0, true, k), 29);
}

TEST(FdGyro, PitchToppleAndErection) {
    u8 k = 0;
    EXPECT_EQ(pitch_step(-5, 0, false, k), -4);
    EXPECT_EQ(pitch_step(-2, 0, false, k), 0);
    EXPECT_EQ(pitch_step(0, 2.5, true, k), 0);      // near level: stays
    EXPECT_EQ(pitch_step(0.7, 2.6, true, k), 2.6);  // within 2 below
    EXPECT_EQ(k, 0);
    k = 1;
    EXPECT_EQ(pitch_step(0, 5, true, k), 1);
    EXPECT_EQ(pitch_step(8, 5, true, k), 5);  // above: snaps at once
}

TEST(FdLaw, DriftCourseAndGlideSlopeEvaluation) {
    EXPECT_EQ(drift_course(90, 100, 0.99, 7), 90);
    EXPECT_NEAR(drift_course(90, 2, 2, 7), 45, 1e-5);
    EXPECT_NEAR(drift_course(20, 2, 2, 7), 335, 1e-5);   // wraps below 0
    EXPECT_NEAR(drift_course(340, 2, -2, 7), 25, 1e-5);  // wraps beyond 360
    EXPECT_EQ(drift_course(90, 2, std::nan(""), 7), 7);  // keeps the last course
    EXPECT_EQ(gs_evaluate(-15, -900), 0);
    EXPECT_EQ(gs_evaluate(-14, -900), -760);
    EXPECT_EQ(gs_evaluate(15, -900), -1500);
}

}  // namespace
