// kestrane radios_nav2_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(radios_nav2,
               gauge("kestrane radios_nav2_jm47", 79, update).elements(image(8528, 0x4001)))  // e0
