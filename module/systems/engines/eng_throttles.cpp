// kestrane eng_throttles_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(eng_throttles,
    gauge("kestrane eng_throttles_jm47", 110, update)
        .elements(image(5744, 0x4001)))  // e0
