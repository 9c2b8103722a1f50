// kestrane eng_rev_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(eng_rev,
    gauge("kestrane eng_rev_jm47", 150, update).help(0xA44B)
        .elements(image(18768, 0x4001)))  // e0
