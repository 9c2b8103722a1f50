// kestrane fuel_temp_right_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_temp_right,
    gauge("kestrane fuel_temp_right_jm47", 110, update)
        .elements(image(21088, 0x4001)))  // e0
