// kestrane airbrakes_ind_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(airbrakes_ind,
               gauge("kestrane airbrakes_ind_jm47", 76, update).elements(image(42272, 0x4001)))  // e0
