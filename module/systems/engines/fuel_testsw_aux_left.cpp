// kestrane fuel_testsw_aux_left_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fuel_testsw_aux_left,
    gauge("kestrane fuel_testsw_aux_left_jm47", 20, update)
        .elements(image(20848, 0x4001)))  // e0
