// kestrane elec_break_reset_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_break_reset,
    gauge("kestrane elec_break_reset_jm47", 245, update)
        .elements(image(26336, 0x4001)))  // e0
