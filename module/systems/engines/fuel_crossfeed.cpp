// kestrane fuel_crossfeed_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_crossfeed,
    gauge("kestrane fuel_crossfeed_jm47", 54, update)
        .elements(image(27344, 0x4001)))  // e0
