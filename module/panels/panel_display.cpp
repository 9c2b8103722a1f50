// kestrane panel_display: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(panel_display, gauge("kestrane panel_display", 1280, update)
                                  .tip("display overview panel")
                                  .elements(image(25392, 0x1)))  // e0
