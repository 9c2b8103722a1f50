// kestrane warn_cabinexcalt_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(warn_cabinexcalt,
               gauge("kestrane warn_cabinexcalt_jm47", 83, update).elements(image(24688, 0x4001)))  // e0
