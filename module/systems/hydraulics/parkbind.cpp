// kestrane ParkBind_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(parkbind, gauge("kestrane ParkBind_jm47", 15, update)
                             .tip("display/hide airport stairs")
                             .elements(image(42960, 0x4001)))  // e0
