// kestrane Reset_fu_2: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(reset_fu_2,
    gauge("kestrane Reset_fu_2", 28, update)
        .elements(image(21040, 0x4001)))  // e0
