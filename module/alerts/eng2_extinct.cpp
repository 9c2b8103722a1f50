// kestrane eng2_extinct_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(eng2_extinct, gauge("kestrane eng2_extinct_jm47", 47, update)
                                 .tip("eng2 extinguisher")
                                 .elements(image(8288, 0x4001)))  // e0
