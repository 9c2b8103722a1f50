// kestrane elec_mas_sw_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_mas_sw,
    gauge("kestrane elec_mas_sw_jm47", 128, update)
        .elements(image(26272, 0x4001)))  // e0
