// kestrane apsurf_elev_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(
    apsurf_elev,
    gauge("kestrane apsurf_elev_jm47", 36, update).help(0xAA37).elements(image(42944, 0x4001)))  // e0
