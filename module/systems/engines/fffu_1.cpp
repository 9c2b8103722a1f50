// kestrane fffu_1: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fffu_1,
    gauge("kestrane fffu_1", 241, update).help(0xAB28)
        .elements(image(20992, 0x4001)))  // e0
