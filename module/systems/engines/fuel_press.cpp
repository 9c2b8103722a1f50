// kestrane fuel_press_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_press,
    gauge("kestrane fuel_press_jm47", 108, update).help(0xAB4E)
        .elements(image(9344, 0x4001)))  // e0
