// kestrane taxilights_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(taxilights,
               gauge("kestrane taxilights_jm47", 98, update).elements(image(41424, 0x4001)))  // e0
