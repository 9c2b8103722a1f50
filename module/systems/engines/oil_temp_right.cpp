// kestrane oil_temp_right_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(oil_temp_right,
    gauge("kestrane oil_temp_right_jm47", 110, update).help(0xAB4F)
        .elements(image(21312, 0x4001)))  // e0
