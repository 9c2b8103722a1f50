// kestrane toggle_pan_up2: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_up2, gauge("kestrane toggle_pan_up2", 85, update)
                                   .tip("display/hide Upper2 panel")
                                   .elements(image(96, 0x40004003)))  // e0
