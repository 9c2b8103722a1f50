// kestrane setalt_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(setalt, gauge("kestrane setalt_jm47", 178, update)
                           .tip("altitude alert setting window")
                           .elements(image(43376, 0x4001)))  // e0
