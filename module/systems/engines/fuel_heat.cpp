// kestrane fuel_heat_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_heat,
    gauge("kestrane fuel_heat_jm47", 289, update)
        .elements(image(13568, 0x4001)))  // e0
