// kestrane panload: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(panload, gauge("kestrane panload", 539, update).elements(image(25680, 0x6)))  // e0
