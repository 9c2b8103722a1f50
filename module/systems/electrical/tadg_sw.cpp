// kestrane tadg_sw_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(tadg_sw,
    gauge("kestrane tadg_sw_jm47", 97, update)
        .elements(image(26864, 0x4001)))  // e0
