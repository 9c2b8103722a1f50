// Autopilot: the order of events inside one click or cycle (scenarios only
// count them), and NaN, infinite or huge host values reaching the signed
// event values.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "host/host.h"

namespace {
using namespace kestrane;
using kestrane::host::Host;
using Ids = std::vector<u32>;

constexpr f64 kNaN = std::numeric_limits<f64>::quiet_NaN();
constexpr f64 kInf = std::numeric_limits<f64>::infinity();
constexpr u32 kIntMin = 0x80000000u, kIntMax = 0x7FFFFFFFu;

class Autopilot : public ::testing::Test {
protected:
    Host host;
    GaugeHeader *rdy = nullptr, *ap = nullptr;

    void SetUp() override {
        ASSERT_TRUE(host.ok()) << host.error();
        rdy = host.gauge("kestrane aprdy_jm47");
        ap = host.gauge("kestrane ap_jm47");
        host.install(rdy);
        host.install(ap);
        for (const char* f : {"elec_dc_bus_2", "elec_ac_26v_bus", "ap_master_sw"})
            set(f, 1);
        set("hyd_green_press", 3000);
        host.set_token(103, 1.0);
    }
    void set(const char* field, f64 v) { ASSERT_TRUE(host.set_field(field, v)) << field; }
    // Events sent, restricted to `only` when given, in order.
    Ids sent(const Ids& only = {}) {
        Ids ids;
        for (const auto& e : host.events())
            if (only.empty() || std::find(only.begin(), only.end(), e.event) != only.end())
                ids.push_back(e.event);
        return ids;
    }
    Ids values(u32 event) {
        Ids v;
        for (const auto& e : host.events())
            if (e.event == event)
                v.push_back(e.value);
        return v;
    }
    void cycle() {
        host.clear_events();
        host.run(1);
    }
};

TEST_F(Autopilot, EventsInOrder) {
    cycle();  // engages pitch hold: the altitude target goes before the VS
    EXPECT_EQ(sent({65726, 66124, 66036}), (Ids{65726, 66124, 66036}));

    set("nav1_code_gs", 1);  // go-around: holds cleared, then heading hold
    set("ap_nav_mode", 3);
    host.set_token(568, 0.75);
    cycle();
    EXPECT_EQ(sent({65819, 65813, 65814, 65807}), (Ids{65819, 65813, 65814, 65807}));

    host.clear_events();
    ASSERT_TRUE(host.click(ap, 30, 20));
    EXPECT_EQ(sent(), (Ids{65791, 66042, 65817, 65815, 65819, 65813, 65814}));
    host.clear_events();
    ASSERT_TRUE(host.click(rdy, 40, 10));  // master off, host autopilot still on
    EXPECT_EQ(sent(), (Ids{65791, 65817, 65815, 65819, 65813, 65814, 66094}));
}

TEST_F(Autopilot, WildHostValuesSaturateOrZero) {
    host.run(1);
    struct {
        f64 host;
        u32 sent;
    } cases[] = {{1e300, kIntMax}, {-1e300, kIntMin}, {kInf, kIntMax}, {-kInf, kIntMin}, {kNaN, 0}};
    for (const auto& c : cases) {  // vertical speed in the pitch law
        set("ap_vs_latched", 0);
        host.set_token(65, c.host);
        cycle();
        EXPECT_EQ(values(66036), Ids{c.sent}) << c.host;
    }
    // Glide slope: the most negative command must round without overflow;
    // the rollout push saturates.
    set("ap_gs_mode", 1);
    host.set_token(614, kNaN);
    set("fd_gs_vs_target", -1e300);
    host.set_token(60, 1.0);
    host.set_token(317, kInf);
    cycle();
    EXPECT_EQ(values(66036), Ids{kIntMin});
    EXPECT_EQ(values(65694), Ids{kIntMax});
    // Bank that is not a number keeps the last bank for the turn law.
    host.set_token(60, 0.0);
    host.set_token(79, 350);
    host.run(1);
    ASSERT_TRUE(host.click(ap, 125, 10));
    host.set_token(79, kNaN);
    cycle();
    EXPECT_EQ(host.field_value("ap_bank_deg"), 10);
    EXPECT_EQ(values(65695), Ids{3180});
}

}  // namespace
