// The aircraft model alone: one simulated hour (64800 cycles) of a cruise
// with both engines running and the host autopilot holding an altitude.
#include <benchmark/benchmark.h>

#include "host/host.h"

namespace {

using kestrane::host::Host;

void BM_ModelHour(benchmark::State& state) {
    Host host;
    if (!host.ok()) {
        state.SkipWithError(host.error().c_str());
        return;
    }
    for (auto _ : state) {
        host.reload();
        host.set_aircraft(true);
        for (unsigned e : {65983u, 65988u, 65959u, 66521u, 65752u})
            host.svc_trigger_key_event(e, 0);
        for (int i = 0; i < 400; ++i) {
            host.svc_trigger_key_event(66300, 0);
            host.svc_trigger_key_event(66301, 0);
            host.run(1);
        }
        host.svc_trigger_key_event(65820, 12000);
        host.svc_trigger_key_event(65821, 12000);
        host.set_token(60, 0.0);
        host.set_token(74, 10000.0);
        host.set_token(61, 250.0);
        host.svc_trigger_key_event(65792, 0);
        host.svc_trigger_key_event(66124, 10000);
        host.svc_trigger_key_event(65726, 0);
        host.run(64800 - 400);
        benchmark::DoNotOptimize(host.token(74));
    }
}
BENCHMARK(BM_ModelHour)->Unit(benchmark::kMillisecond);

}  // namespace
