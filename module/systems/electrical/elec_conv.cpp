// kestrane elec_conv_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_conv,
    gauge("kestrane elec_conv_jm47", 165, update)
        .elements(image(26688, 0x4001)))  // e0
