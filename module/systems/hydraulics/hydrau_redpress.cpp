// kestrane hydrau_redpress_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(hydrau_redpress,
    gauge("kestrane hydrau_redpress_jm47", 107, update)
        .elements(image(26752, 0x4001)))  // e0
