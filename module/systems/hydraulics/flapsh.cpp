// kestrane flapsh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(flapsh, gauge("kestrane flapsh_jm47", 72, update).elements(image(41088, 0x4001)))  // e0
