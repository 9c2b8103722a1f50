// kestrane elec_tr_sw_lh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_tr_sw_lh,
    gauge("kestrane elec_tr_sw_lh_jm47", 96, update)
        .elements(image(26528, 0x4001)))  // e0
