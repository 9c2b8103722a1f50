// kestrane fuel_pumps_lh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_pumps_lh,
    gauge("kestrane fuel_pumps_lh_jm47", 100, update)
        .elements(image(27280, 0x4001)))  // e0
