// kestrane aircondtemp_cabin_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(aircondtemp_cabin,
               gauge("kestrane aircondtemp_cabin_jm47", 100, update).elements(image(13424, 0x4001)))  // e0
