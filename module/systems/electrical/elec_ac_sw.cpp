// kestrane elec_ac_sw_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_ac_sw,
    gauge("kestrane elec_ac_sw_jm47", 121, update)
        .elements(image(26320, 0x4001)))  // e0
