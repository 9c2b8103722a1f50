// kestrane testspoil_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(testspoil, gauge("kestrane testspoil_jm47", 116, update).elements(image(41024, 0x4001)))  // e0
