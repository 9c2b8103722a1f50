// kestrane fdadi_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(fdadi,
               gauge("kestrane fdadi_jm47", 188, update).help(0xAB0D).elements(image(42016, 0x4001)))  // e0
