// kestrane toggle_pan_elec: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_elec, gauge("kestrane toggle_pan_elec", 147, update)
                                    .tip("display/hide electrical or hydraulic/servos panel")
                                    .elements(image(256, 0x40004003)))  // e0
