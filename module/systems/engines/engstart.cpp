// kestrane engstart_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(engstart,
    gauge("kestrane engstart_jm47", 215, update)
        .elements(image(10592, 0x4001)))  // e0
