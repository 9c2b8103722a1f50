// kestrane panelnight_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(panelnight,
    gauge("kestrane panelnight_jm47", 1279, update)
        .elements(image(26672, 0x4001)))  // e0
