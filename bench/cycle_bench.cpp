// Cost of the update cycle with every gauge installed: the full cycle with
// drawing, the module's service-6 pass alone, and one simulated hour.
// Drawing alone is the full cycle less the module's pass.
#include <benchmark/benchmark.h>

#include <vector>

#include "host/host.h"

namespace {

using kestrane::GaugeHeader;
using kestrane::host::Host;

// A host with every gauge installed, past start-up.
bool ready(Host& host, benchmark::State& state) {
    if (!host.ok()) {
        state.SkipWithError(host.error().c_str());
        return false;
    }
    host.install_all();
    host.run(20);
    return true;
}

// Tokens advance, every gauge's callback runs and every gauge is drawn.
void BM_FullCycle(benchmark::State& state) {
    Host host;
    if (!ready(host, state))
        return;
    for (auto _ : state)
        host.run(1);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FullCycle);

// One service-6 pass; not inlined, so that callgrind can count it alone
// (--toggle-collect='*module_pass*').
[[gnu::noinline]] void module_pass(const std::vector<GaugeHeader*>& gauges) {
    for (GaugeHeader* g : gauges)
        g->callback(g, 6, 0);
}

// The module's own work: service 6 of every installed gauge, no drawing.
void BM_ModulePass(benchmark::State& state) {
    Host host;
    if (!ready(host, state))
        return;
    std::vector<GaugeHeader*> gauges;
    for (GaugeHeader* g : host.installed_gauges())
        if (g->callback != nullptr)
            gauges.push_back(g);
    for (auto _ : state)
        module_pass(gauges);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ModulePass);

// One hour of simulated time at 18 cycles a second, headless.
void BM_SimulatedHour(benchmark::State& state) {
    Host host;
    if (!ready(host, state))
        return;
    for (auto _ : state)
        host.run(64800);
    state.SetItemsProcessed(state.iterations() * 64800);
}
BENCHMARK(BM_SimulatedHour)->Unit(benchmark::kMillisecond);

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
