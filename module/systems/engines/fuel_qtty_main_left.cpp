// kestrane fuel_qtty_main_left_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_qtty_main_left,
    gauge("kestrane fuel_qtty_main_left_jm47", 110, update).help(0xAB26)
        .elements(image(20800, 0x4001)))  // e0
