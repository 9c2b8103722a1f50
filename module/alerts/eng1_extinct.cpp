// kestrane eng1_extinct_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(eng1_extinct, gauge("kestrane eng1_extinct_jm47", 47, update)
                                 .tip("eng1 extinguisher")
                                 .elements(image(8288, 0x4001)))  // e0
