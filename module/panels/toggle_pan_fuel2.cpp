// kestrane toggle_pan_fuel2: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_fuel2, gauge("kestrane toggle_pan_fuel2", 70, update)
                                     .tip("close fuel panel")
                                     .elements(image(1600, 0x40004003)))  // e0
