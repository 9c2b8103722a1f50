// kestrane montre_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(montre, gauge("kestrane montre_jm47", 256, update).elements(image(42896, 0x4001)))  // e0
