// Rolling digit drums, and the fuel-used counter drums of the fuel flow gauges.
#include "frame/drum.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "host/host.h"

namespace {

using namespace kestrane;
using kestrane::host::Host;

// Positions a drum passes through, draw by draw, until it has settled.
std::vector<f64> roll(f64 pos, f64 target, i32 positions, int draws) {
    std::vector<f64> seen;
    for (int i = 0; i < draws; ++i) {
        pos = drum_roll(pos, target, positions);
        seen.push_back(pos);
    }
    return seen;
}

void expect_path(const std::vector<f64>& seen, const std::vector<f64>& want) {
    ASSERT_EQ(seen.size(), want.size());
    for (std::size_t i = 0; i < want.size(); ++i)
        EXPECT_NEAR(seen[i], want[i], 1e-9) << "draw " << i;
}

TEST(Drum, StepsAQuarterDigitAndSettlesExactly) {
    expect_path(roll(2.0, 5.0, 10, 13),
                {2.25, 2.5, 2.75, 3.0, 3.25, 3.5, 3.75, 4.0, 4.25, 4.5, 4.75, 5.0, 5.0});
    expect_path(roll(5.0, 4.0, 10, 5), {4.75, 4.5, 4.25, 4.0, 4.0});
    // within 0.2 it settles on the digit at once, from either side
    EXPECT_EQ(drum_roll(6.85, 7.0, 10), 7.0);
    EXPECT_EQ(drum_roll(7.15, 7.0, 10), 7.0);
    EXPECT_EQ(drum_roll(0.15, 0.0, 10), 0.0);
    // a tenths drum settles on a target that is not a whole digit
    EXPECT_EQ(drum_roll(4.9, 4.9999999, 10), 4.9999999);
}

TEST(Drum, RollsTheShortWayBetweenTopDigitAndZero) {
    // 9 to 0 goes on over the top and the strip starts again at 0
    expect_path(roll(9.0, 0.0, 10, 6), {9.25, 9.5, 9.75, 10.0, 0.0, 0.0});
    // 0 to 9 jumps behind the top and comes back down
    expect_path(roll(0.0, 9.0, 10, 6), {9.9, 9.65, 9.4, 9.15, 9.0, 9.0});
    // the same on the four-digit drum (0..3) and the two-digit one (0..1)
    expect_path(roll(3.0, 0.0, 4, 5), {3.25, 3.5, 3.75, 4.0, 0.0});
    expect_path(roll(0.0, 3.0, 4, 5), {3.9, 3.65, 3.4, 3.15, 3.0});
    expect_path(roll(1.0, 0.0, 2, 5), {1.25, 1.5, 1.75, 2.0, 0.0});
    expect_path(roll(0.0, 1.0, 2, 5), {1.9, 1.65, 1.4, 1.15, 1.0});
}

TEST(Drum, OnlyTopDigitAndZeroAreNeighbours) {
    expect_path(roll(8.0, 0.0, 10, 2), {7.75, 7.5});
    expect_path(roll(1.0, 9.0, 10, 2), {1.25, 1.5});
    expect_path(roll(0.0, 2.0, 4, 2), {0.25, 0.5});
    // told to stay at 9 halfway over the top: back down; behind the top
    // on the way to 9, told 0: on over the top
    expect_path(roll(9.5, 9.0, 10, 2), {9.25, 9.0});
    expect_path(roll(9.65, 0.0, 10, 2), {9.9, 0.0});
}

TEST(Drum, EightDigitTransponderDrumWrapsBetweenSevenAndZero) {
    expect_path(roll(0.0, 7.0, 8, 5), {7.9, 7.65, 7.4, 7.15, 7.0});
    expect_path(roll(7.0, 0.0, 8, 5), {7.25, 7.5, 7.75, 8.0, 0.0});
    expect_path(roll(7.0, 1.0, 8, 2), {6.75, 6.5});
}

TEST(Drum, HostDigitsOffTheStripAreKeptOnIt) {
    Drum d{3.0, 0.0, 10};
    drum_aim(d, std::numeric_limits<f64>::quiet_NaN());
    EXPECT_EQ(d.target, 0.0);
    drum_aim(d, -4.0);
    EXPECT_EQ(d.target, 0.0);
    drum_aim(d, 15.0);  // a bad BCD nibble
    EXPECT_NEAR(d.target, 9.9, 1e-12);
    drum_aim(d, 9.5);  // a tenths drum half way to 0 stays there
    EXPECT_EQ(d.target, 9.5);
    Drum two{0.0, 0.0, 2};
    drum_aim(two, 10.0);
    EXPECT_NEAR(two.target, 1.9, 1e-12);
    // a position spoiled from outside is brought back on the strip first
    Drum spoiled{std::numeric_limits<f64>::quiet_NaN(), 5.0, 10};
    EXPECT_EQ(drum_step(spoiled), 0.0);
    spoiled.pos = 1e9;
    EXPECT_EQ(drum_step(spoiled), 10.0);
    EXPECT_EQ(drum_step(spoiled), 9.75);
}

// The fuel-used counter, read as the host reads it when it draws the gauge.
class FuelCounter : public ::testing::Test {
protected:
    Host host;
    GaugeHeader* g = nullptr;
    void SetUp() override {
        ASSERT_TRUE(host.ok()) << host.error();
        g = host.gauge("kestrane fffu_1");
        ASSERT_NE(g, nullptr);
        host.install(g);
    }
    // e1 units ... e5 ten-thousands
    std::vector<f64> drums(f64 used) {
        host.set_field("fuel_used_1", used);
        host.run(1);
        std::vector<f64> v;
        for (int k = 1; k <= 5; ++k) {
            Element* e = Host::element(g, k);
            v.push_back(e->u.moving.callback_y(e));
        }
        return v;
    }
};

TEST_F(FuelCounter, UpperDrumsTurnDuringTheLastKilogram) {
    expect_path(drums(12345.6), {5.6, 4, 3, 2, 1});
    // each drum moves only while every drum to its right is on its way to 0
    expect_path(drums(12399.5), {9.5, 9.5, 3.5, 2, 1});
    expect_path(drums(9999.5), {9.5, 9.5, 9.5, 9.5, 0.5});
    // the top drum shows 0 from one hundred thousand on
    expect_path(drums(100000.0), {0, 0, 0, 0, 0});
    expect_path(drums(123456.0), {6, 5, 4, 3, 0});
}

}  // namespace
