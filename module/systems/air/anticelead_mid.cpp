// kestrane anticelead_mid_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(anticelead_mid,
               gauge("kestrane anticelead_mid_jm47", 219, update).elements(image(41920, 0x4001)))  // e0
