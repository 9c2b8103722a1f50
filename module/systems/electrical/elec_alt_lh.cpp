// kestrane elec_alt_lh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_alt_lh,
    gauge("kestrane elec_alt_lh_jm47", 171, update)
        .elements(image(26480, 0x4001)))  // e0
