// The host aircraft model on its own: controls moving at their rates, toggles,
// radio tuning, the host autopilot, take-off and determinism.
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <tuple>

#include "host/host.h"
#include "host/model/aircraft.h"
#include "host/scenario.h"

namespace {

using namespace kestrane::host;
using model::Aircraft;

class Model : public ::testing::Test {
protected:
    Host host;
    void SetUp() override {
        ASSERT_TRUE(host.ok()) << host.error();
        host.set_aircraft(true);
    }
    void send(std::uint32_t e, std::uint32_t v = 0) { host.svc_trigger_key_event(e, v); }
    std::uint32_t bcd(std::uint32_t id) {
        std::uint8_t raw[8];
        host.read_token(id, raw);
        std::uint32_t v;
        std::memcpy(&v, raw, 4);
        return v;
    }
    // Both engines running at idle, fed from their own sides.
    void start_engines() {
        for (auto [lever, sel, ev] :
             {std::tuple{65983u, 65957u, 66300u}, std::tuple{65988u, 66519u, 66301u}}) {
            send(lever);
            send(sel);
            for (int i = 0; i < 400; ++i) {
                send(ev);
                host.run(1);
            }
        }
        host.run(900);
    }
};

TEST_F(Model, FlapHandleStepsThroughDetentsAndFlapsFollowAtTwoDegreesASecond) {
    const double detents[] = {1820, 6553, 9830, 13107, 16384, 16384};
    for (double d : detents) {
        send(65758);
        EXPECT_EQ(host.token(328), d);
    }
    send(65759);
    EXPECT_EQ(host.token(328), 13107);
    send(65595);
    EXPECT_EQ(host.token(328), 0);
    send(65759);  // already up
    EXPECT_EQ(host.token(328), 0);
    send(65758);
    send(65758);  // 10 degrees
    host.run(90);
    EXPECT_NEAR(host.token(907), 10.0, 1e-9);
    EXPECT_NEAR(host.token(908), 10.0, 1e-9);
    send(65603);
    host.run(18);
    EXPECT_NEAR(host.token(907), 12.0, 1e-9);
}

TEST_F(Model, GearLegsMoveAtFiniteRatesAndAirbrakesInTwoSeconds) {
    EXPECT_EQ(host.token(333), 16384);
    send(66079);
    EXPECT_EQ(host.token(331), 0.0);
    host.run(90);  // 5 s of a 10 s travel
    EXPECT_NEAR(host.token(333), 8192, 1);
    EXPECT_GT(host.token(332), host.token(333));  // the middle leg is slower
    host.run(120);
    EXPECT_EQ(host.token(332), 0.0);
    EXPECT_EQ(host.token(333), 0.0);
    EXPECT_EQ(host.token(334), 0.0);
    send(66064);
    host.run(18);
    EXPECT_NEAR(host.token(326), 8192, 1);
    host.run(18);
    EXPECT_EQ(host.token(327), 16384);
    send(65786, 7000);
    EXPECT_EQ(host.token(325), 7000);
}

TEST_F(Model, TogglesIgnoreTheirValueAndSignedValuesKeepTheirSign) {
    EXPECT_EQ(host.token(323), 16384);
    send(65752);
    EXPECT_EQ(host.token(323), 0);
    send(66310);
    EXPECT_EQ(host.token(323), 16384);
    send(66313, 1);
    EXPECT_EQ(host.token(564), 1.0);
    send(66313, 0);  // the extinguisher logic restores with value 0
    EXPECT_EQ(host.token(564), 0.0);
    send(65695, static_cast<std::uint32_t>(-8000));
    EXPECT_EQ(host.token(313), -8000);
    send(65820, static_cast<std::uint32_t>(-4000));
    EXPECT_EQ(host.token(128), -4000);
    host.run(1);
    EXPECT_EQ(host.token(558), -4000.0 / 16384.0);
    send(66488, 1);
    EXPECT_EQ(host.token(883), 1.0);
    EXPECT_EQ(host.token(884), 1.0);
    // the exit closes only after it was selected
    host.set_token(868, 1.0);
    send(65538);
    EXPECT_EQ(host.token(868), 1.0);
    send(66389);
    send(65538);
    EXPECT_EQ(host.token(868), 0.0);
}

TEST_F(Model, RadioKnobsTuneInBcdAndWrap) {
    EXPECT_EQ(bcd(24), 0x1030u);  // 110.30, the ILS
    send(65643);
    EXPECT_EQ(bcd(24), 0x1035u);
    send(65641);
    EXPECT_EQ(bcd(24), 0x1135u);
    host.set_token_bcd(24, 0x1795);  // 117.95 + 50 kHz wraps within the MHz
    send(65643);
    EXPECT_EQ(bcd(24), 0x1700u);
    send(65641);  // 117 + 1 MHz wraps to 108
    EXPECT_EQ(bcd(24), 0x0800u);
    send(65640);
    EXPECT_EQ(bcd(24), 0x1700u);
    // COM: 25 kHz steps, stored truncated to 10 kHz
    EXPECT_EQ(bcd(23), 0x1800u);
    send(65639);
    EXPECT_EQ(bcd(23), 0x1802u);
    send(65639);
    EXPECT_EQ(bcd(23), 0x1805u);
    send(65639);
    EXPECT_EQ(bcd(23), 0x1807u);
    send(65639);  // 25 kHz steps run on through the MHz: 118.100
    EXPECT_EQ(bcd(23), 0x1810u);
    host.set_token_bcd(23, 0x1800);
    send(65638);                  // and wrap within it
    EXPECT_EQ(bcd(23), 0x1897u);  // 118.975
    // transponder digits wrap 0..7
    host.set_token_bcd(38, 0x7000);
    send(65651);
    EXPECT_EQ(bcd(38), 0x0000u);
    send(66458);
    EXPECT_EQ(bcd(38), 0x0007u);
}

TEST_F(Model, EnginesTakeOffAndTheAutopilotCapturesTheAltitude) {
    start_engines();
    EXPECT_NEAR(host.token(625), 62.0, 0.5);
    EXPECT_NEAR(host.token(644), 62.0, 0.5);
    send(65758);
    send(65758);  // flaps 10
    send(65752);  // parking brake off
    send(65963);
    send(65968);
    host.run(36 * 18);
    EXPECT_EQ(host.token(60), 1.0);  // no rotation without the elevator
    EXPECT_GT(host.token(61), 130.0);
    host.set_token(317, -8000);
    host.run(10 * 18);
    EXPECT_EQ(host.token(60), 0.0);
    EXPECT_GT(host.token(614), 5.0);
    EXPECT_LT(host.token(78), 0.0);  // nose up reads negative
    host.set_token(317, 0);
    send(66079);
    send(65792);
    send(66124, 3000);
    send(66036, 1500);
    send(65726);
    host.run(240 * 18);
    EXPECT_NEAR(host.token(74), 3000.0, 30.0);
    EXPECT_NEAR(host.token(65), 0.0, 50.0);
    EXPECT_EQ(host.token(333), 0.0);
    // heading hold: a right turn to 360 from 270
    send(66042, 360);
    send(65807);
    host.run(18 * 5);
    EXPECT_LT(host.token(80), -10.0);  // right wing down reads negative
    EXPECT_GT(host.token(70), 0.0);
    host.run(18 * 60);
    EXPECT_NEAR(std::remainder(host.token(84), 360.0), 0.0, 2.0);
    // descent at a negative vertical speed to a lower target
    send(66124, 2000);
    send(66036, static_cast<std::uint32_t>(-1000));
    host.run(18 * 30);
    EXPECT_LT(host.token(65), -1000.0);  // 1/256 m/s: about -1300 at -1000 ft/min
    host.run(18 * 120);
    EXPECT_NEAR(host.token(74), 2000.0, 30.0);
}

TEST_F(Model, SameEventsGiveTheSameFlightToTheBit) {
    auto fly = [this] {
        host.reload();
        host.set_aircraft(true);
        start_engines();
        send(65752);
        send(65963);
        send(65968);
        host.run(1000);
        host.set_token(317, -8000);
        host.run(2000);
        double out[4] = {host.token(74), host.token(61), host.token(291), host.token(625)};
        return std::to_array(out);
    };
    auto a = fly();
    auto b = fly();
    EXPECT_EQ(std::memcmp(a.data(), b.data(), sizeof(double) * 4), 0);
}

// A trace: its header, then one row a simulated second with the time first.
TEST(ModelTrace, OneRowASimulatedSecond) {
    Host host;
    ASSERT_TRUE(host.ok());
    const auto dir = std::filesystem::temp_directory_path();
    const std::string scn = (dir / ("kestrane-trace-" + std::to_string(::getpid()) + ".scn")).string();
    const std::string csv = scn + ".csv";
    std::ofstream(scn) << "aircraft default\ntrace elec_ess_bus token 333 named \"Turbine_N2_1\"\n"
                          "run 18\ntoken 333 = 5\naircraft off\nrun 18\n";
    ASSERT_TRUE(host.trace_to(csv));
    std::ostringstream out;
    EXPECT_EQ(run_paths({scn}, host, out), 0) << out.str();
    host.trace_to("/dev/null");  // closes the file
    std::ifstream in(csv);
    std::string all((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    EXPECT_EQ(all, "time,elec_ess_bus,token 333,named Turbine_N2_1\n1,0,16384,0\n2,0,5,0\n");
    std::filesystem::remove(scn);
    std::filesystem::remove(csv);
}

TEST(ModelMath, EngineCurvesAndStallSpeed) {
    EXPECT_DOUBLE_EQ(Aircraft::n1_from_n2(62.0), 30.0);
    EXPECT_DOUBLE_EQ(Aircraft::n1_from_n2(100.0), 100.0);
    EXPECT_GT(Aircraft::n1_from_n2(100.0 * 0.84 + 62.0 * 0.16), 84.0 - 20.0);
    EXPECT_DOUBLE_EQ(Aircraft::fuel_flow(30.0), 800.0);
    EXPECT_DOUBLE_EQ(Aircraft::thrust(20.0), 0.0);
    EXPECT_DOUBLE_EQ(Aircraft::thrust(100.0), 14500.0);
    // landing reference speed = 1.3 x stall with full flap
    EXPECT_NEAR(Aircraft::stall_speed(48000.0, 40.0) * 1.3, 131.0, 1e-9);
    EXPECT_GT(Aircraft::stall_speed(48000.0, 0.0), Aircraft::stall_speed(48000.0, 40.0));
    EXPECT_DOUBLE_EQ(Aircraft::com_mhz(0x1802), 118.025);
    EXPECT_EQ(Aircraft::com_bcd(136.975), 0x3697u);
    EXPECT_DOUBLE_EQ(Aircraft::nav_mhz(0x0800), 108.0);
}

}  // namespace
