// kestrane alti_old_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(alti_old, gauge("kestrane alti_old_jm47", 192, update).elements(image(42096, 0x4001)))  // e0
