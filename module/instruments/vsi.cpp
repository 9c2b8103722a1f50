// kestrane vsi_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(vsi, gauge("kestrane vsi_jm47", 181, update).elements(image(42144, 0x4001)))  // e0
