// kestrane elec_tr_sw_rh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_tr_sw_rh,
    gauge("kestrane elec_tr_sw_rh_jm47", 33, update)
        .elements(image(26544, 0x4001)))  // e0
