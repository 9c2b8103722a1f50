// kestrane omi_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(omi, gauge("kestrane omi_jm47", 86, update).elements(image(42848, 0x4001)))  // e0
