// kestrane toggle_pan_elec2: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_elec2, gauge("kestrane toggle_pan_elec2", 51, update)
                                     .tip("close electrical panel")
                                     .elements(image(128, 0x40004003)))  // e0
