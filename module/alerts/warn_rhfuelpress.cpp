// kestrane warn_rhfuelpress_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(warn_rhfuelpress,
               gauge("kestrane warn_rhfuelpress_jm47", 41, update).elements(image(24672, 0x4001)))  // e0
