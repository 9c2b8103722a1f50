// kestrane commut_batt_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(commut_batt,
    gauge("kestrane commut_batt_jm47", 97, update)
        .elements(image(26848, 0x4001)))  // e0
