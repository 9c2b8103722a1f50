// Throttle lever positions and the readout's digit drums, as the host reads
// them from the value callbacks after a cycle.
#include <gtest/gtest.h>

#include <array>
#include "host/host.h"

namespace {

using namespace kestrane;
using kestrane::host::Host;
using D = std::array<f64, 3>;

class Throttles : public ::testing::Test {
protected:
    Host host;
    GaugeHeader *levers = nullptr, *readout = nullptr;
    void SetUp() override {
        ASSERT_TRUE(host.ok()) << host.error();
        levers = host.gauge("kestrane eng_throttles_jm47");
        readout = host.gauge("kestrane th_val_jm47");
        ASSERT_TRUE(levers && readout);
        host.install(levers);
        host.install(readout);
    }
    static f64 y(GaugeHeader* g, int n) {
        Element* e = Host::element(g, n);
        return e->u.moving.callback_y(e);
    }
    // units, tenths, hundredths of lever 1 (side 0) or 2 (side 1)
    D digits(int side) {
        const int b = side == 0 ? 1 : 4;
        return {y(readout, b + 2), y(readout, b + 1), y(readout, b)};
    }
    void run(f64 t1, f64 t2, f64 l1, f64 l2) {
        host.set_token(128, t1);
        host.set_token(163, t2);
        host.set_token(558, l1);
        host.set_token(568, l2);
        host.run(1);
    }
};

TEST_F(Throttles, LeversAndDigits) {
    // one pixel per 100 throttle units from idle at 164, truncated, clamped
    const f64 cases[][2] = {{16384, 0}, {8192, 82}, {-4096, 123}, {-20000, 0}, {99.9, 163}};
    for (const auto& c : cases) {
        run(c[0], c[0], 0, 0);
        for (int n = 1; n <= 6; ++n)
            EXPECT_EQ(y(levers, n), c[1]) << c[0] << " e" << n;
    }
    run(0, 0, -0.35, 4915.0 / 16384);  // reverse shows the magnitude; truncated
    EXPECT_EQ(digits(0), (D{0, 3, 5}));
    EXPECT_EQ(digits(1), (D{0, 2, 9}));
}

TEST_F(Throttles, EngineOneFireAndExtinguisher) {
    host.set_field("warn_eng1_fire", 1);  // lever 1 drawn and shown from lever 2
    run(12000, 5000, 0.8, 0.3);
    EXPECT_EQ(y(levers, 1), 114);
    EXPECT_EQ(digits(0), (D{0, 3, 0}));
    host.set_field("warn_eng1_fire", 0);  // extinguisher fired: lever 1 at idle
    host.set_field("warn_eng1_ext_fired", 1);
    run(16384, 16384, 0.8, 0.3);
    EXPECT_EQ(y(levers, 1), 164);
    EXPECT_EQ(y(levers, 2), 0);
    EXPECT_EQ(digits(0), (D{0, 0, 0}));
}

}  // namespace
