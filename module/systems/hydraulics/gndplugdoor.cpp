// kestrane GndPlugDoor_jm47: ground power plug button and its light. The
// click asks the electrical network for the ground power unit, which
// connects it if one is available.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

u32 KCALL toggle(PixPoint*, u32) {
    ac.elec_gndpwr_plug = ac.elec_gndpwr_plug == 0 ? 1 : 0;
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        show(g, 0, ac.elec_gndpwr_connected == 1 && ac.elec_ess_bus == 1);
}
}  // namespace

KESTRANE_GAUGE(gndplugdoor, gauge("kestrane GndPlugDoor_jm47", 15, update)
                                .tip("connect/disconnect groundpowerunit")
                                .elements(image(43008, 0x40004001))  // e0 ground power connected light
                                .mouse(click(0, 0, 17, 17, kCursorHand, toggle)))
