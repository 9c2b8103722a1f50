// kestrane oil_qtty_right_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(oil_qtty_right,
    gauge("kestrane oil_qtty_right_jm47", 110, update).help(0xA41A)
        .elements(image(21280, 0x4001)))  // e0
