// kestrane anticelead_up_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(anticelead_up,
               gauge("kestrane anticelead_up_jm47", 226, update).elements(image(41936, 0x4001)))  // e0
