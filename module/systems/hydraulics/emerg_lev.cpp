// kestrane emerg_lev_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(emerg_lev, gauge("kestrane emerg_lev_jm47", 339, update).elements(image(40832, 0x4001)))  // e0
