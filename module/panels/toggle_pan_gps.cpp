// kestrane toggle_pan_gps: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_gps, gauge("kestrane toggle_pan_gps", 70, update)
                                   .tip("display/hide gps panel")
                                   .elements(image(272, 0x40000000)))  // e0
