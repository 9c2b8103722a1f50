// kestrane servos_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(servos, gauge("kestrane servos_jm47", 411, update).elements(image(40816, 0x4001)))  // e0
