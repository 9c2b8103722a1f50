// kestrane warn_rhfueltemp_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(warn_rhfueltemp,
               gauge("kestrane warn_rhfueltemp_jm47", 87, update).elements(image(24640, 0x4001)))  // e0
