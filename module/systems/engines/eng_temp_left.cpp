// kestrane eng_temp_left_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(eng_temp_left,
    gauge("kestrane eng_temp_left_jm47", 110, update).help(0xAB23)
        .elements(image(20592, 0x4001)))  // e0
