// kestrane elec_dcvolt_sel_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_dcvolt_sel,
    gauge("kestrane elec_dcvolt_sel_jm47", 122, update)
        .elements(image(26368, 0x4001)))  // e0
