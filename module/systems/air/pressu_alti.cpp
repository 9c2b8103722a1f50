// kestrane pressu_alti_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(pressu_alti,
               gauge("kestrane pressu_alti_jm47", 198, update).elements(image(12672, 0x4001)))  // e0
