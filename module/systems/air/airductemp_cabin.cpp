// kestrane airductemp_cabin_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(airductemp_cabin,
               gauge("kestrane airductemp_cabin_jm47", 100, update).elements(image(13440, 0x4001)))  // e0
