// kestrane surf_ail_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(
    surf_ail, gauge("kestrane surf_ail_jm47", 121, update).help(0xAA37).elements(image(42240, 0x4001)))  // e0
