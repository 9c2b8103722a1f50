// kestrane GndPlugDoor_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(gndplugdoor, gauge("kestrane GndPlugDoor_jm47", 15, update)
                                .tip("connect/disconnect groundpowerunit")
                                .elements(image(43008, 0x4001)))  // e0
