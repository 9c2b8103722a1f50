// kestrane eng2_extinct_jm47: background only so far.
#include "frame/gauge_def.h"
#include "frame/host.h"
#include "panels/panel_load.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate) {
        panel_load_cycle();
    }
}
}  // namespace

KESTRANE_GAUGE(eng2_extinct, gauge("kestrane eng2_extinct_jm47", 47, update)
                                 .tip("eng2 extinguisher")
                                 .elements(image(8288, 0x4001)))  // e0
