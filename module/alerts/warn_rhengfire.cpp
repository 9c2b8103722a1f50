// kestrane warn_rhengfire_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(warn_rhengfire,
               gauge("kestrane warn_rhengfire_jm47", 83, update).elements(image(22896, 0x4001)))  // e0
