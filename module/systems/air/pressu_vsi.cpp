// kestrane pressu_vsi_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(pressu_vsi,
               gauge("kestrane pressu_vsi_jm47", 137, update).elements(image(12608, 0x4001)))  // e0
