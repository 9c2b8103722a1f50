// kestrane warn_lhfuelpress_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(warn_lhfuelpress,
               gauge("kestrane warn_lhfuelpress_jm47", 76, update).elements(image(24656, 0x4001)))  // e0
