// kestrane warn_lhfueltemp_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(warn_lhfueltemp,
               gauge("kestrane warn_lhfueltemp_jm47", 82, update).elements(image(24624, 0x4001)))  // e0
