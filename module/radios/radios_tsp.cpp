// kestrane radios_tsp_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(radios_tsp,
               gauge("kestrane radios_tsp_jm47", 187, update).elements(image(8720, 0x4001)))  // e0
