// kestrane epr2_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(epr2,
    gauge("kestrane epr2_jm47", 109, update)
        .elements(image(20528, 0x4001)))  // e0
