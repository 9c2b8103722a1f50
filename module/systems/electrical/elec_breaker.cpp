// kestrane elec_breaker_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_breaker,
    gauge("kestrane elec_breaker_jm47", 251, update)
        .elements(image(26352, 0x4001)))  // e0
