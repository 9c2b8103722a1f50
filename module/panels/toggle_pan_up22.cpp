// kestrane toggle_pan_up22: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_up22, gauge("kestrane toggle_pan_up22", 70, update)
                                    .tip("close Upper2 panel")
                                    .elements(image(336, 0x40004003)))  // e0
