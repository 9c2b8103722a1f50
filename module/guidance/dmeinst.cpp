// kestrane dmeinst_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(dmeinst, gauge("kestrane dmeinst_jm47", 136, update).elements(image(42336, 0x4001)))  // e0
