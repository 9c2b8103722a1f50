// kestrane adf_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(adf, gauge("kestrane adf_jm47", 181, update).elements(image(42128, 0x4001)))  // e0
