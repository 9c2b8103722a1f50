// kestrane raltmini_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(raltmini, gauge("kestrane raltmini_jm47", 228, update).elements(image(43072, 0x4001)))  // e0
