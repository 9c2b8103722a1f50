// kestrane hydrau_level_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(hydrau_level,
    gauge("kestrane hydrau_level_jm47", 114, update)
        .elements(image(26704, 0x4001)))  // e0
