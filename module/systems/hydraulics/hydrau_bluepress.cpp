// kestrane hydrau_bluepress_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(hydrau_bluepress,
    gauge("kestrane hydrau_bluepress_jm47", 105, update)
        .elements(image(26736, 0x4001)))  // e0
