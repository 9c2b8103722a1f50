// kestrane up2_sw_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(up2_sw, gauge("kestrane up2_sw_jm47", 221, update).elements(image(41536, 0x4001)))  // e0
