// kestrane elec_ac_gndpwr_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_ac_gndpwr,
    gauge("kestrane elec_ac_gndpwr_jm47", 118, update)
        .elements(image(26512, 0x4001)))  // e0
