// kestrane toggle_pan_ped: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_ped, gauge("kestrane toggle_pan_ped", 70, update)
                                   .tip("display/hide pedestal panel")
                                   .elements(image(1616, 0x40004003)))  // e0
