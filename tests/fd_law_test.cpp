// Flight-director laws: band edges, intercept hysteresis, gyro paths that
// the cockpit scenarios do not reach.
#include "guidance/fd_law.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>
#include <vector>

namespace {

using namespace kestrane;
using namespace kestrane::fd;
using Pairs = std::vector<std::pair<f64, f64>>;

TEST(FdLaw, BandEdgesBelongToTheInnerBandAboveAndOuterBandBelow) {
    for (auto [e, b] :
         Pairs{{-15.01, -25}, {-15, -15}, {-5, -5}, {-3, -1}, {-2, 0}, {2, 0}, {3, 1}, {15, 15}})
        EXPECT_EQ(hdg_band(e), b) << e;
    for (auto [e, b] : Pairs{{-15, -10}, {-5, -2}, {-2.01, -1}, {2.5, 1}, {5, 2}, {10, 5}, {15.01, 25}})
        EXPECT_EQ(nav_band(e), b) << e;
}

TEST(FdLaw, InterceptHysteresisSteps) {
    const Thresholds t = thresholds(false, 150, 0, 0);  // S3 1.48, S4 0.74, S5 0.49
    u8 h1 = 3, h2 = 3;
    // deviation, angle, H1, H2 after the cycle
    const std::vector<std::array<f64, 4>> steps = {{10.01, 0, 3, 3}, {2.0, 10, 0, 3}, {1.0, 5, 0, 0},
                                                   {-0.6, 1, 0, 1},  {0.3, 0, 1, 1},  {0.6, 1, 2, 1},
                                                   {1.0, 5, 2, 2},   {0.3, 0, 3, 2},  {0.6, 1, 0, 3}};
    for (const auto& s : steps) {
        EXPECT_EQ(intercept_angle(s[0], t, h1, h2), s[1]) << s[0];
        EXPECT_EQ(h1, s[2]) << s[0];
        EXPECT_EQ(h2, s[3]) << s[0];
    }
    EXPECT_EQ(intercept_heading(-2.5, 10, 14.9, 15, 200), 359);
    EXPECT_EQ(intercept_heading(2.5, 10, 345, 15, 200), 360);
    EXPECT_EQ(intercept_heading(2.5, 10, 345.5, 15, 200), 0);
}

TEST(FdLaw, AdiBankErectsTheLongWayRoundBelowMinus120) {
    u8 k = 1;
    f64 d = 60;
    std::vector<f64> seen;
    while (k == 1 && seen.size() < 400) {
        d = adi_bank_step(d, -150, true, k);
        seen.push_back(d);
    }
    ASSERT_EQ(seen.size(), 150u);
    EXPECT_EQ(seen[119], 180);
    EXPECT_EQ(seen[120], -180);
    EXPECT_EQ(seen[148], -152);
    EXPECT_EQ(adi_bank_step(-181, 0, false, k), 179.9);
    EXPECT_EQ(adi_bank_step(180, 0, false, k), 60);
}

TEST(FdLaw, StandbyBankToppleTable) {
    u8 k = 0;
    for (auto [d, next] : Pairs{{150, 149},
                                {150.5, 151.5},
                                {180, -180},
                                {-180, -179},
                                {-32.5, -31.5},
                                {-32, -30},
                                {-28, -30},
                                {-27.5, -28.5},
                                {-181, -30}})
        EXPECT_EQ(standby_bank_step(d, 0, false, k), next) << d;
    EXPECT_EQ(standby_bank_step(-30, -32.5, true, k), -32.5);  // at once near -30
    k = 1;
    EXPECT_EQ(standby_bank_step(170, 0, true, k), 169);  // walks the short way back
}

}  // namespace
