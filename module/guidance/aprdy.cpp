// kestrane aprdy_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(aprdy, gauge("kestrane aprdy_jm47", 231, update).elements(image(41040, 0x4001)))  // e0
