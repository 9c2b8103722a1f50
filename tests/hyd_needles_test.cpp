// Hydraulic dials: the 26 V AC instrument bus, and clamps on the needle only.
#include <gtest/gtest.h>

#include "host/host.h"

namespace {
using namespace kestrane;
using kestrane::host::Host;
class HydNeedles : public ::testing::Test {
protected:
    Host host;
    GaugeHeader *level, *green, *red, *yellow;

    void SetUp() override {
        ASSERT_TRUE(host.ok()) << host.error();
        level = host.gauge("kestrane hydrau_level_jm47");
        green = host.gauge("kestrane hydrau_greenpress_jm47");
        red = host.gauge("kestrane hydrau_redpress_jm47");
        yellow = host.gauge("kestrane hydrau_yellowpress_jm47");
        for (GaugeHeader* g : {level, green, red, yellow})
            host.install(g);
        set("elec_ac_26v_bus", 1);
        host.set_token(625, 40);  // engine 1 running: green normal
        host.run(100);
    }
    static f64 needle(GaugeHeader* g, int n) {
        Element* e = Host::element(g, n);
        return e->u.needle.callback(e);
    }
    void set(const char* field, f64 v) { ASSERT_TRUE(host.set_field(field, v)) << field; }
};
TEST_F(HydNeedles, BusDeadGreenZeroRedAndLevelFrozenYellowLive) {
    set("elec_ac_26v_bus", 0);
    set("hyd_red_press", 900);
    set("hyd_yellow2_press", 700);
    host.set_token(333, 16384);  // gear down: green level 60
    host.run(1);
    EXPECT_EQ(host.field_value("hyd_green_press"), 2500);
    EXPECT_EQ(needle(green, 15), 0);
    EXPECT_EQ(needle(red, 5), 2500);
    EXPECT_EQ(needle(yellow, 4), 700);
    EXPECT_EQ(needle(level, 1), 50);
    set("elec_ac_26v_bus", 1);
    host.run(1);
    EXPECT_EQ(needle(green, 15), 2500);
    EXPECT_EQ(needle(red, 5), 900);
    EXPECT_EQ(needle(level, 1), 60);
}

TEST_F(HydNeedles, ValuesOffTheDialClampedOnTheNeedleOnly) {
    set("hyd_yellow2_press", 5000);
    set("hyd_blue_level", 90);
    host.run(1);
    EXPECT_EQ(needle(yellow, 4), 4000);
    EXPECT_EQ(needle(level, 2), 70);
    EXPECT_EQ(host.field_value("hyd_yellow_press"), 5000);
    EXPECT_EQ(host.field_value("hyd_blue_level"), 90);
}
}  // namespace
