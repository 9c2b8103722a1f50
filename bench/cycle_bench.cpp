// One full update cycle of the host with every gauge installed: tokens
// advance, every gauge's callback runs and every gauge is drawn.
#include <benchmark/benchmark.h>

#include "host/host.h"

namespace {

using kestrane::host::Host;

void BM_FullCycle(benchmark::State& state) {
    Host host;
    if (!host.ok()) {
        state.SkipWithError(host.error().c_str());
        return;
    }
    host.install_all();
    host.run(20);
    for (auto _ : state)
        host.run(1);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FullCycle);

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
