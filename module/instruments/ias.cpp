// kestrane ias_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(ias, gauge("kestrane ias_jm47", 206, update).elements(image(42000, 0x4001)))  // e0
