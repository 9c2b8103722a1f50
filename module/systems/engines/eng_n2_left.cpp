// kestrane eng_n2_left_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(eng_n2_left,
    gauge("kestrane eng_n2_left_jm47", 110, update).help(0xAB22)
        .elements(image(20768, 0x4001)))  // e0
