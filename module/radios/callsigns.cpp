// kestrane callsigns_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(callsigns,
    gauge("kestrane callsigns_jm47", 183, update)
        .elements(image(10304, 0x4001)))  // e0
