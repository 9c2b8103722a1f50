// kestrane DoorOpen_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(dooropen, gauge("kestrane DoorOpen_jm47", 15, update)
                             .tip("open/close forward main door")
                             .elements(image(42992, 0x4001)))  // e0
