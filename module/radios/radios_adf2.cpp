// kestrane radios_adf2_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(radios_adf2,
               gauge("kestrane radios_adf2_jm47", 196, update).elements(image(8768, 0x4001)))  // e0
