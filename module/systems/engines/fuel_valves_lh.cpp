// kestrane fuel_valves_lh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_valves_lh,
    gauge("kestrane fuel_valves_lh_jm47", 91, update)
        .elements(image(27312, 0x4001)))  // e0
