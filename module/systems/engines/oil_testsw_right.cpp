// kestrane oil_testsw_right_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(oil_testsw_right,
    gauge("kestrane oil_testsw_right_jm47", 28, update)
        .elements(image(21344, 0x4001)))  // e0
