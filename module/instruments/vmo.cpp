// kestrane vmo_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(vmo, gauge("kestrane vmo_jm47", 17, update).elements(image(42080, 0x4001)))  // e0
