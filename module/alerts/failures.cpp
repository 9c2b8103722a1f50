// kestrane failures_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(failures, gauge("kestrane failures_jm47", 1179, update).elements(image(24704, 0x5)))  // e0
