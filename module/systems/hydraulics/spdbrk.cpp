// kestrane spdbrk_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(spdbrk, gauge("kestrane spdbrk_jm47", 48, update).elements(image(40944, 0x4001)))  // e0
