// kestrane fuel_lowlvl_rh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_lowlvl_rh,
    gauge("kestrane fuel_lowlvl_rh_jm47", 37, update)
        .elements(image(9488, 0x4001)))  // e0
