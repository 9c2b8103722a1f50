// kestrane sw_uplight_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(sw_uplight,
    gauge("kestrane sw_uplight_jm47", 324, update)
        .elements(image(26656, 0x4001)))  // e0
