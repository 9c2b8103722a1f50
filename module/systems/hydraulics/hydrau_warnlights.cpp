// kestrane hydrau_warnlights_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(hydrau_warnlights,
    gauge("kestrane hydrau_warnlights_jm47", 190, update)
        .elements(image(26784, 0x4001)))  // e0
