// Heap allocations in the steady state: none per update cycle, click, hold
// or scenario step once the host and module have started (the storm installs
// every gauge). Counts every
// malloc of the process (host, module and C runtime) by replacing it.
#include <gtest/gtest.h>

#include <cstddef>
#include <sstream>
#include <string>

#include "host/scenario.h"
#include "tests/storm/storm.h"

extern "C" {
void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void __libc_free(void*);
}

namespace {
std::size_t g_allocations = 0;
}

extern "C" {
void* malloc(std::size_t n) {
    ++g_allocations;
    return __libc_malloc(n);
}
void* calloc(std::size_t n, std::size_t m) {
    ++g_allocations;
    return __libc_calloc(n, m);
}
void* realloc(void* p, std::size_t n) {
    ++g_allocations;
    return __libc_realloc(p, n);
}
void free(void* p) {
    __libc_free(p);
}
}

namespace {

using namespace kestrane;
using namespace kestrane::host;

TEST(Allocations, NoneInScenarioStepsAndPassingChecks) {
    Host host;
    ASSERT_TRUE(host.ok());
    Script script;
    ParseError error;
    ASSERT_TRUE(parse_script("steps.scn",
                             "gauges all\n"
                             "token 874 = 1\n"
                             "run 20\n"
                             "click \"testgauge2k\" 1 1\n"
                             "hold \"testgauge2k\" 1 1 4\n"
                             "expect token 1 >= 20\n"
                             "expect elec_master_sw == 2\n"
                             "expect no event 65568\n"
                             "expect event 65568 count 0\n"
                             "expect hidden \"testgauge2k\" 1\n"
                             "expect window 10150 closed\n"
                             "expect named \"airport_extpwr_connected\" == 0\n"
                             "click \"kestrane callsigns_jm47\" 115 60\n"
                             "click \"kestrane callsigns_jm47\" 115 45\n"
                             "expect sound \"HI\" played\n"
                             "expect sound \"CLICK\" played count 1\n"
                             "expect sound \"LO\" silent\n"
                             "expect sound \"CLICK\" volume -2000\n"
                             "expect sound \"HI\" playing\n",
                             host, script, error))
        << error.message;
    std::ostringstream out;
    RunTotals totals;
    Runner runner(host, totals, out);
    ASSERT_TRUE(runner.begin("steps.scn"));
    runner.execute(script.commands[0]);
    runner.execute(script.commands[1]);
    runner.execute(script.commands[2]);  // start-up
    std::size_t before = g_allocations;
    for (int round = 0; round < 10; ++round)
        for (std::size_t i = 2; i < script.commands.size(); ++i)
            runner.execute(script.commands[i]);
    EXPECT_EQ(g_allocations - before, 0u);
    EXPECT_EQ(totals.failed, 0) << out.str();
}

// The storm's clicks, holds and hostile host values, after a first storm has
// grown the host's own tables (names, drawn texts). Gauges stay installed:
// starting the sound player makes the stand-in device allocate its buffers.
TEST(Allocations, NoneOverAStorm) {
    Host host;
    ASSERT_TRUE(host.ok());
    storm::Options o;
    storm::Result r;
    for (storm::Mode m : {storm::Mode::Finite, storm::Mode::Hostile}) {
        o.seed = 7;
        o.cycles = 4000;
        o.mode = m;
        o.reload = m == storm::Mode::Finite;
        o.reinstall = false;
        ASSERT_TRUE(storm::run_episode(host, o, r)) << r.failure;
    }
    static std::size_t before;
    before = g_allocations;
    {
        std::string probe(200, 'x');  // the counter itself works
        EXPECT_GT(g_allocations, before);
    }
    o.reload = false;
    o.started = [] { before = g_allocations; };
    ASSERT_TRUE(storm::run_episode(host, o, r)) << r.failure;
    EXPECT_EQ(g_allocations - before, 0u) << "over " << r.cycles << " cycles and " << r.steps << " steps";
    EXPECT_GT(r.mouse, 20);  // the storm did click and hold
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
