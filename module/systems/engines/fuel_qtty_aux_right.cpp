// kestrane fuel_qtty_aux_right_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_qtty_aux_right,
    gauge("kestrane fuel_qtty_aux_right_jm47", 110, update).help(0xAB26)
        .elements(image(20816, 0x4001)))  // e0
