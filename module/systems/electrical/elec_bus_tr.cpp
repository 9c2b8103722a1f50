// kestrane elec_bus_tr_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_bus_tr,
    gauge("kestrane elec_bus_tr_jm47", 294, update)
        .elements(image(26560, 0x4001)))  // e0
