// kestrane toggle_pan_up32: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_up32, gauge("kestrane toggle_pan_up32", 108, update)
                                    .tip("close Upper3 panel")
                                    .elements(image(352, 0x40004003)))  // e0
