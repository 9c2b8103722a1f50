// kestrane fuel_panlight_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_panlight,
    gauge("kestrane fuel_panlight_jm47", 550, update)
        .elements(image(9568, 0x4001)))  // e0
