// kestrane airbleed_lh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(airbleed_lh,
               gauge("kestrane airbleed_lh_jm47", 225, update).elements(image(5632, 0x4001)))  // e0
