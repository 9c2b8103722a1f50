// kestrane fuel_bp_left_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_bp_left,
    gauge("kestrane fuel_bp_left_jm47", 35, update)
        .elements(image(8224, 0x4001)))  // e0
