// kestrane airbrakes_warn_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(airbrakes_warn,
               gauge("kestrane airbrakes_warn_jm47", 28, update).elements(image(42288, 0x4001)))  // e0
