// kestrane fdsw_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fdsw, gauge("kestrane fdsw_jm47", 90, update).elements(image(42048, 0x4001)))  // e0
