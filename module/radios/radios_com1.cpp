// kestrane radios_com1_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(radios_com1,
               gauge("kestrane radios_com1_jm47", 96, update).elements(image(8512, 0x4001)))  // e0
