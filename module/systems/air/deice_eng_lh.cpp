// kestrane deice_eng_lh_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(deice_eng_lh,
               gauge("kestrane deice_eng_lh_jm47", 114, update).elements(image(41488, 0x4001)))  // e0
