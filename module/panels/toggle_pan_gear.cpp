// kestrane toggle_pan_gear: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_gear, gauge("kestrane toggle_pan_gear", 80, update)
                                    .tip("display/hide gear ind. panel")
                                    .elements(image(304, 0x40004003)))  // e0
