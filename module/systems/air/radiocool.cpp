// kestrane radiocool_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(radiocool, gauge("kestrane radiocool_jm47", 250, update).elements(image(13584, 0x4001)))  // e0
