// kestrane toggle_pan_ap: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_ap, gauge("kestrane toggle_pan_ap", 70, update)
                                  .tip("display/hide autopilot only")
                                  .elements(image(64, 0x40004003)))  // e0
