// kestrane pressu_cabinctrl_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(pressu_cabinctrl,
               gauge("kestrane pressu_cabinctrl_jm47", 311, update).elements(image(12400, 0x4001)))  // e0
