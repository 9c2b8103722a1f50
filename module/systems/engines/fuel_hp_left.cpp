// kestrane fuel_hp_left_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_hp_left,
    gauge("kestrane fuel_hp_left_jm47", 62, update)
        .elements(image(5968, 0x4001)))  // e0
