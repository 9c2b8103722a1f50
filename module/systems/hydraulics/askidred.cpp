// kestrane askidred_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(askidred, gauge("kestrane askidred_jm47", 55, update).elements(image(41408, 0x4001)))  // e0
