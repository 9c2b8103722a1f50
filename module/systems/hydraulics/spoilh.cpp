// kestrane spoilh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(spoilh, gauge("kestrane spoilh_jm47", 63, update).elements(image(40960, 0x4001)))  // e0
