// kestrane vor_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(vor, gauge("kestrane vor_jm47", 181, update).elements(image(42112, 0x4001)))  // e0
