// kestrane gearind_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(gearind,
               gauge("kestrane gearind_jm47", 168, update).help(0xAB31).elements(image(43024, 0x4001)))  // e0
