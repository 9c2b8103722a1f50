// kestrane hsimini_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(hsimini, gauge("kestrane hsimini_jm47", 210, update).elements(image(43120, 0x4001)))  // e0
