// kestrane toggle_pan_fail: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_fail, gauge("kestrane toggle_pan_fail", 70, update)
                                    .tip("display/hide failures panel")
                                    .elements(image(1632, 0x40004003)))  // e0
