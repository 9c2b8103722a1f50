// kestrane gpws_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(gpws, gauge("kestrane gpws_jm47", 107, update).elements(image(13680, 0x2)))  // e0
