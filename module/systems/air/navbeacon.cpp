// kestrane navbeacon_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(navbeacon, gauge("kestrane navbeacon_jm47", 103, update).elements(image(41456, 0x4001)))  // e0
