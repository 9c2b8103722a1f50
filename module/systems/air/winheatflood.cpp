// kestrane winheatflood_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(winheatflood,
               gauge("kestrane winheatflood_jm47", 140, update).elements(image(41440, 0x4001)))  // e0
