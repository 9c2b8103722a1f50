// kestrane hydrau_brakes_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(hydrau_brakes,
               gauge("kestrane hydrau_brakes_jm47", 265, update).elements(image(40800, 0x4001)))  // e0
