// kestrane pitots_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(pitots, gauge("kestrane pitots_jm47", 157, update).elements(image(41472, 0x4001)))  // e0
