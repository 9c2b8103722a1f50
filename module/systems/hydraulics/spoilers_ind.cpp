// kestrane spoilers_ind_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(spoilers_ind,
               gauge("kestrane spoilers_ind_jm47", 31, update).elements(image(42304, 0x4001)))  // e0
