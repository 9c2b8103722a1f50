// kestrane oil_press_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(oil_press,
    gauge("kestrane oil_press_jm47", 110, update).help(0xAB4E)
        .elements(image(21120, 0x4001)))  // e0
