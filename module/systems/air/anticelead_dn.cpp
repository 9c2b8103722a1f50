// kestrane anticelead_dn_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(anticelead_dn,
               gauge("kestrane anticelead_dn_jm47", 220, update).elements(image(41904, 0x4001)))  // e0
