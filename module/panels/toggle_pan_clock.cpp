// kestrane toggle_pan_clock: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_clock, gauge("kestrane toggle_pan_clock", 70, update)
                                     .tip("display/hide clock")
                                     .elements(image(48, 0x40004003)))  // e0
