// kestrane hydrau_yellowpress_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(hydrau_yellowpress,
    gauge("kestrane hydrau_yellowpress_jm47", 107, update)
        .elements(image(26768, 0x4001)))  // e0
