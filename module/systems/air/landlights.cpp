// kestrane landlights_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(landlights,
               gauge("kestrane landlights_jm47", 205, update).elements(image(41568, 0x4001)))  // e0
