// kestrane aircondtemp_ctrl_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(aircondtemp_ctrl,
               gauge("kestrane aircondtemp_ctrl_jm47", 208, update).elements(image(13312, 0x4001)))  // e0
