// kestrane toggle_pan_fuel: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_fuel, gauge("kestrane toggle_pan_fuel", 70, update)
                                    .tip("display/hide fuel panel")
                                    .elements(image(1584, 0x40004003)))  // e0
