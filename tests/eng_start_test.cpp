// Throttle lever positions and the throttle readout's digit drums, as the
// host reads them from the value callbacks after a cycle.
#include <gtest/gtest.h>

#include <array>

#include "host/host.h"

namespace {

using namespace kestrane;
using kestrane::host::Host;

class Throttles : public ::testing::Test {
protected:
    Host host;
    GaugeHeader* levers = nullptr;
    GaugeHeader* readout = nullptr;

    void SetUp() override {
        ASSERT_TRUE(host.ok()) << host.error();
        levers = host.gauge("kestrane eng_throttles_jm47");
        readout = host.gauge("kestrane th_val_jm47");
        ASSERT_NE(levers, nullptr);
        ASSERT_NE(readout, nullptr);
        host.install(levers);
        host.install(readout);
    }

    // Vertical value of moving image eN (after the cycle's drawing).
    static f64 y(GaugeHeader* g, int n) {
        Element* e = Host::element(g, n);
        return e->u.moving.callback_y(e);
    }
    f64 lever(int n) { return y(levers, n); }
    // units, tenths, hundredths of throttle 1 (side 0) or 2 (side 1)
    std::array<f64, 3> digits(int side) {
        const int base = side == 0 ? 1 : 4;
        return {y(readout, base + 2), y(readout, base + 1), y(readout, base)};
    }
    void throttles(f64 t1, f64 t2) {
        host.set_token(128, t1);
        host.set_token(163, t2);
        host.run(1);
    }
    void levers_at(f64 l1, f64 l2) {
        host.set_token(558, l1);
        host.set_token(568, l2);
        host.run(1);
    }
};

using D = std::array<f64, 3>;

TEST_F(Throttles, LeverDrawnOneHundredthOfAPixelPerThrottleUnit) {
    struct Case {
        f64 throttle, offset;
    } cases[] = {
        {16384, 0},    // full: 164 - 163.84 truncated
        {8192, 82},    // half
        {1638, 147},   // 0.1
        {0, 164},      // idle
        {-4096, 123},  // reverse: idle is still 164, full reverse up the travel
        {-16384, 0},   //
        {20000, 0},    // beyond full: held at the top of the travel
        {-20000, 0},   //
        {99.9, 163},   // truncated, not rounded
        {-99.9, 163},  //
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.throttle);
        throttles(c.throttle, c.throttle);
        EXPECT_EQ(lever(1), c.offset);
        EXPECT_EQ(lever(2), c.offset);
        EXPECT_EQ(lever(3), c.offset);  // reverse images share the offset
        EXPECT_EQ(lever(4), c.offset);
        EXPECT_EQ(lever(5), c.offset);  // knobs
        EXPECT_EQ(lever(6), c.offset);
    }
    Element* e = Host::element(levers, 1);
    EXPECT_EQ(e->u.moving.callback_x(e), 1.0);
}

TEST_F(Throttles, EngineOneFireAndExtinguisher) {
    // fire: lever 1 drawn from throttle 2, direction from throttle 1
    host.set_field("warn_eng1_fire", 1);
    throttles(12000, 5000);
    EXPECT_EQ(lever(1), 114);
    EXPECT_EQ(lever(2), 114);
    throttles(-100, 5000);
    EXPECT_EQ(lever(3), 164);  // 164 + 50, held at idle
    // extinguisher fired, fire out: lever 1 at idle whatever the host says
    host.set_field("warn_eng1_fire", 0);
    host.set_field("warn_eng1_ext_fired", 1);
    throttles(16384, 16384);
    EXPECT_EQ(lever(1), 164);
    EXPECT_EQ(lever(5), 164);
    EXPECT_EQ(lever(2), 0);
    // ... and while the fire burns the fire rule wins
    host.set_field("warn_eng1_fire", 1);
    throttles(16384, 8192);
    EXPECT_EQ(lever(1), 82);
}

TEST_F(Throttles, ReadoutDigits) {
    levers_at(0.75, 1.0);
    EXPECT_EQ(digits(0), (D{0, 7, 5}));
    EXPECT_EQ(digits(1), (D{1, 0, 0}));
    // reverse shows the magnitude
    levers_at(-0.35, -0.06);
    EXPECT_EQ(digits(0), (D{0, 3, 5}));
    EXPECT_EQ(digits(1), (D{0, 0, 6}));
    // truncated: 0.3 from a stripe is 4915/16384
    levers_at(4915.0 / 16384, 0.999);
    EXPECT_EQ(digits(0), (D{0, 2, 9}));
    EXPECT_EQ(digits(1), (D{0, 9, 9}));
    levers_at(0, 0);
    EXPECT_EQ(digits(0), (D{0, 0, 0}));
    // drums stay on their scale
    levers_at(12.5, 0);
    EXPECT_EQ(digits(0)[0], 9);
    Element* e = Host::element(readout, 1);
    EXPECT_EQ(e->u.moving.callback_x(e), 1.0);
}

TEST_F(Throttles, ReadoutDuringEngineOneFire) {
    host.set_field("warn_eng1_fire", 1);
    levers_at(0.8, 0.3);
    EXPECT_EQ(digits(0), (D{0, 3, 0}));  // lever 1 shows where lever 2 is
    EXPECT_EQ(digits(1), (D{0, 3, 0}));
    host.set_field("warn_eng1_fire", 0);
    host.set_field("warn_eng1_ext_fired", 1);
    levers_at(0.8, 0.3);
    EXPECT_EQ(digits(0), (D{0, 0, 0}));
    EXPECT_EQ(digits(1), (D{0, 3, 0}));
}

}  // namespace
