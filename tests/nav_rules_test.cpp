// HSI and navigation arithmetic: DME drums, course digits, knob and heading
// wraps, RMI needles, glide-slope pointer.
#include "guidance/nav_rules.h"

#include <gtest/gtest.h>

namespace {

using namespace kestrane;
using namespace kestrane::nav;

void expect_digits(f64 d, f64 h, f64 t, f64 u) {
    const DmeDigits r = dme_digits(d);
    EXPECT_NEAR(r.hundreds, h, 1e-9) << "hundreds of " << d;
    EXPECT_NEAR(r.tens, t, 1e-9) << "tens of " << d;
    EXPECT_NEAR(r.units, u, 1e-9) << "units of " << d;
}

TEST(DmeDigits, WholeAndRollingDigits) {
    expect_digits(0.0, 0, 0, 0);
    expect_digits(12.5, 0, 1, 2.5);
    expect_digits(250.0, 2, 5, 0);
    // the hundreds and tens drums roll over the last hundredth / tenth
    expect_digits(199.5, 1.5, 9.5, 9.5);
    expect_digits(199.0, 1.0, 9.0, 9.0);
    expect_digits(99.0, 0.0, 9.0, 9.0);
    expect_digits(99.95, 0.95, 9.95, 9.95);
    // just at the thresholds: still whole
    expect_digits(190.0, 1, 9, 0);
}

TEST(DmeDigits, BeyondTheDisplay) {
    // from 999.9 on the hundreds drum reads 0
    EXPECT_EQ(dme_digits(1000.0).hundreds, 0.0);
    EXPECT_EQ(dme_digits(999.95).hundreds, 0.0);
    EXPECT_GT(dme_digits(999.85).hundreds, 9.0);
    EXPECT_EQ(dme_digits(1e300).hundreds, 0.0);
}

TEST(CourseDigits, SplitsTheCourse) {
    const DmeDigits c = course_digits(275.0);
    EXPECT_EQ(c.hundreds, 2.0);
    EXPECT_EQ(c.tens, 7.0);
    EXPECT_EQ(c.units, 5.0);
    EXPECT_EQ(course_digits(5.0).tens, 0.0);
    EXPECT_NEAR(course_digits(359.5).units, 9.5, 1e-9);
}

TEST(Knobs, HeadingWraps) {
    EXPECT_EQ(heading_step(0, -1), 359);
    EXPECT_EQ(heading_step(359, 1), 0);
    EXPECT_EQ(heading_step(9, -10), 359);
    EXPECT_EQ(heading_step(10, -10), 0);
    EXPECT_EQ(heading_step(350, 10), 360);
    EXPECT_EQ(heading_step(351, 10), 1);
    EXPECT_EQ(heading_step(360, 10), 10);
}

TEST(Knobs, CourseWrapsOnTheHostCourse) {
    EXPECT_EQ(course_step(0, 0.0, -1), 359);
    EXPECT_EQ(course_step(0, 0.4, -1), -1);  // only exactly 0.0 wraps
    EXPECT_EQ(course_step(359, 359.0, 1), 0);
    EXPECT_EQ(course_step(355, 355.0, 10), 5);
    EXPECT_EQ(course_step(350, 350.0, 10), 360);
    EXPECT_EQ(course_step(5, 5.0, -10), 355);
    EXPECT_EQ(course_step(10, 10.0, -10), 0);
}

TEST(Knobs, ImageAngles) {
    EXPECT_EQ(knob_step(5, -1), 360);
    EXPECT_EQ(knob_step(6, -1), 1);
    EXPECT_EQ(knob_step(355, 1), 0);
    EXPECT_EQ(knob_step(350, 1), 355);
    EXPECT_EQ(knob_step(50, -10), 360);
    EXPECT_EQ(knob_step(51, -10), 1);
    EXPECT_EQ(knob_step(300, 10), 0);
    EXPECT_EQ(knob_step(299, 10), 349);
}

TEST(Rmi, NeedleFromBearing) {
    EXPECT_EQ(rmi_needle(90.0), 0.0);
    EXPECT_EQ(rmi_needle(89.5), 359.5);
    EXPECT_EQ(rmi_needle(0.0), 270.0);
    EXPECT_EQ(rmi_needle(270.0), 180.0);
}

TEST(GlideSlope, PointerSteps) {
    // tracking: one step toward the deviation, settling within one step
    EXPECT_EQ(gs_pointer_step(-1.0, true, 0.0), 0.0);
    EXPECT_EQ(gs_pointer_step(5.0, true, 0.0), 6.0);
    EXPECT_EQ(gs_pointer_step(6.5, true, 0.0), 6.0);
    EXPECT_EQ(gs_pointer_step(9.0, true, -60.0), 8.0);
    EXPECT_EQ(gs_pointer_step(4.0, true, -60.0), 3.0);
    // beyond the scale: held at its ends
    EXPECT_EQ(gs_pointer_step(10.5, true, 500.0), 11.0);
    EXPECT_EQ(gs_pointer_step(0.5, true, -500.0), 0.0);
    // no glide slope: down to the park position
    EXPECT_EQ(gs_pointer_step(6.0, false, 0.0), 5.0);
    EXPECT_EQ(gs_pointer_step(-0.5, false, 0.0), -1.0);
    EXPECT_EQ(gs_pointer_step(-1.0, false, 0.0), -1.0);
}

}  // namespace
