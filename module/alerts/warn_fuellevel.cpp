// kestrane warn_fuellevel_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(warn_fuellevel,
               gauge("kestrane warn_fuellevel_jm47", 80, update).elements(image(22800, 0x4001)))  // e0
