// kestrane deice_eng_light_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(deice_eng_light,
               gauge("kestrane deice_eng_light_jm47", 27, update).elements(image(10336, 0x4001)))  // e0
