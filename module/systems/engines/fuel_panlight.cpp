// kestrane fuel_panlight_jm47: night lighting of the fuel panel.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    show(g, 0, ac.light_panel_night == 1);
}
}  // namespace

KESTRANE_GAUGE(fuel_panlight, gauge("kestrane fuel_panlight_jm47", 550, update)
                                  .elements(image(9568, 0x40004001)))  // e0 night overlay
