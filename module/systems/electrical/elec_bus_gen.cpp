// kestrane elec_bus_gen_jm47: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(elec_bus_gen,
    gauge("kestrane elec_bus_gen_jm47", 450, update)
        .elements(image(26304, 0x4001)))  // e0
