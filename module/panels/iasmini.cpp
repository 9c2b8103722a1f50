// kestrane iasmini_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(iasmini, gauge("kestrane iasmini_jm47", 206, update).elements(image(43088, 0x4001)))  // e0
