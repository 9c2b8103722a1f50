// kestrane aircondopen_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(aircondopen,
               gauge("kestrane aircondopen_jm47", 15, update).elements(image(43040, 0x4001)))  // e0
