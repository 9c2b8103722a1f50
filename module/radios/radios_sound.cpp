// kestrane radios_sound_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(radios_sound,
    gauge("kestrane radios_sound_jm47", 159, update)
        .elements(image(8976, 0x3)))  // e0
