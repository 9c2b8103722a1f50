// kestrane fdadimini_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(
    fdadimini,
    gauge("kestrane fdadimini_jm47", 188, update).help(0xAB0D).elements(image(43104, 0x4001)))  // e0
