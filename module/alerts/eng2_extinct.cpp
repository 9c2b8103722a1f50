// kestrane eng2_extinct_jm47: engine 2 fire extinguisher. Its callback also
// runs the panel-load sequence, after the extinguisher.
#include "frame/gauge.h"
#include "panels/panel_load.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.warn_eng2_fire == 1 && ac.fuel_hp_cock_rh == 0 && ac.fuel_bp_cock_rh == 0 &&
        ac.warn_eng2_ext_fired == 1)
        ac.warn_eng2_fire = 0;
    if (ac.warn_eng2_fire == 0)
        ac.warn_eng2_ext_fired = 0;
    panel_load_cycle();
}

u32 KCALL fire(PixPoint*, u32) {
    if (ac.warn_eng2_fire == 1 && ac.elec_fire_ext_power == 1)
        ac.warn_eng2_ext_fired = 1;
    return 0;
}
}  // namespace

KESTRANE_GAUGE(eng2_extinct, gauge("kestrane eng2_extinct_jm47", 47, update)
                                 .tip("eng2 extinguisher")
                                 .elements(image(8288, 0x40000003))  // e0 never shown
                                 .mouse(click(0, 0, 47, 45, kCursorHand, fire)))
