// Cost of the update cycle with every gauge installed: the full cycle with
// drawing, the module's service-6 pass alone, and one simulated hour.
// Drawing alone is the full cycle less the module's pass.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <vector>

#include "host/host.h"

namespace {

using kestrane::GaugeHeader;
using kestrane::host::Host;

// KESTRANE_BENCH_ITERATIONS=N runs each cycle benchmark exactly N times, so
// that an instruction count under callgrind divides by a known number.
void counted(benchmark::internal::Benchmark* b) {
    if (const char* n = std::getenv("KESTRANE_BENCH_ITERATIONS"); n != nullptr && std::atoi(n) > 0)
        b->Iterations(std::atoi(n));
}

// A host with every gauge installed. At load the cockpit waits for the
// pilot's choice of start (and reopens the main windows every cycle); ready
// to fly, it has chosen a ready start and the aircraft model has run a minute
// (engines started, windows closed), then the model stops so that only the
// module and the host are measured.
enum class Start { kAtLoad, kReadyToFly };

bool ready(Host& host, benchmark::State& state, Start start = Start::kReadyToFly) {
    if (!host.ok()) {
        state.SkipWithError(host.error().c_str());
        return false;
    }
    host.install_all();
    host.run(20);
    if (start == Start::kReadyToFly) {
        host.set_aircraft(true);
        host.set_field("panel_load_choice", 2);
        host.run(18 * 60);
        host.set_aircraft(false);
    }
    return true;
}

// One cycle; not inlined, so that callgrind can count it alone
// (--toggle-collect='*full_cycle*').
[[gnu::noinline]] void full_cycle(Host& host) {
    host.run(1);
}

// Tokens advance, every gauge's callback runs and every gauge is drawn.
void BM_FullCycle(benchmark::State& state) {
    Host host;
    if (!ready(host, state))
        return;
    for (auto _ : state) {
        host.begin_step();  // the key-event and sound logs of one step, as the runner keeps them
        full_cycle(host);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FullCycle)->Apply(counted);

// One service-6 pass; not inlined, so that callgrind can count it alone
// (--toggle-collect='*::module_pass(*'; the plain pattern also matches module_passes).
[[gnu::noinline]] void module_pass(const std::vector<GaugeHeader*>& gauges) {
    for (GaugeHeader* g : gauges)
        g->callback(g, 6, 0);
}

// The module's own work: service 6 of every installed gauge, no drawing.
void module_passes(benchmark::State& state, Start start) {
    Host host;
    if (!ready(host, state, start))
        return;
    std::vector<GaugeHeader*> gauges;
    for (GaugeHeader* g : host.installed_gauges())
        if (g->callback != nullptr)
            gauges.push_back(g);
    for (auto _ : state) {
        host.begin_step();
        module_pass(gauges);
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_ModulePass(benchmark::State& state) {
    module_passes(state, Start::kReadyToFly);
}
BENCHMARK(BM_ModulePass)->Apply(counted);

// The same pass while the cockpit waits for the choice of start.
void BM_ModulePassAtLoad(benchmark::State& state) {
    module_passes(state, Start::kAtLoad);
}
BENCHMARK(BM_ModulePassAtLoad)->Apply(counted);

// One hour of simulated time at 18 cycles a second, headless.
void BM_SimulatedHour(benchmark::State& state) {
    Host host;
    if (!ready(host, state))
        return;
    for (auto _ : state)
        for (int second = 0; second < 3600; ++second) {
            host.begin_step();
            host.run(18);
        }
    state.SetItemsProcessed(state.iterations() * 64800);
}
BENCHMARK(BM_SimulatedHour)->Unit(benchmark::kMillisecond)->Apply(counted);

void BM_ClickDiagnostic(benchmark::State& state) {
    Host host;
    if (!host.ok()) {
        state.SkipWithError(host.error().c_str());
        return;
    }
    auto* g = host.gauge("testgauge2k");
    for (auto _ : state)
        benchmark::DoNotOptimize(host.click(g, 3, 3));
}
BENCHMARK(BM_ClickDiagnostic);

}  // namespace

BENCHMARK_MAIN();
