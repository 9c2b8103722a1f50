// kestrane warn_servo_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(warn_servo,
               gauge("kestrane warn_servo_jm47", 80, update).elements(image(22912, 0x4001)))  // e0
