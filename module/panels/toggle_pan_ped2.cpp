// kestrane toggle_pan_ped2: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_ped2, gauge("kestrane toggle_pan_ped2", 115, update)
                                    .tip("close pedestal panel")
                                    .elements(image(320, 0x40004003)))  // e0
