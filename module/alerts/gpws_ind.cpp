// kestrane gpws_ind_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(gpws_ind, gauge("kestrane gpws_ind_jm47", 56, update)
                             .tip("GPWS / displays windows click areas")
                             .elements(image(13872, 0x1)))  // e0
