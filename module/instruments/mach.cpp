// kestrane mach_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(mach, gauge("kestrane mach_jm47", 123, update).elements(image(42160, 0x4001)))  // e0
