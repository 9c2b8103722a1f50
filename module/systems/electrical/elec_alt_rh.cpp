// kestrane elec_alt_rh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_alt_rh,
    gauge("kestrane elec_alt_rh_jm47", 132, update)
        .elements(image(26496, 0x4001)))  // e0
