// kestrane horiz_sec_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(horiz_sec, gauge("kestrane horiz_sec_jm47", 340, update).elements(image(42192, 0x4001)))  // e0
