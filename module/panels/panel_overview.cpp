// kestrane panel_overview: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(panel_overview,
               gauge("kestrane panel_overview", 539, update).elements(image(25408, 0x4002)))  // e0
