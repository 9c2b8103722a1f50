// kestrane apseul_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(apseul, gauge("kestrane apseul_jm47", 216, update).elements(image(41072, 0x4001)))  // e0
