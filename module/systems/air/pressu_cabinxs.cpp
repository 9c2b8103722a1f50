// kestrane pressu_cabinxs_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(pressu_cabinxs,
               gauge("kestrane pressu_cabinxs_jm47", 271, update).elements(image(13152, 0x4001)))  // e0
