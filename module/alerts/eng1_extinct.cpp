// kestrane eng1_extinct_jm47: engine 1 fire extinguisher. Fired on a detected
// fire with extinguisher power; it puts the fire out once both fuel cocks of
// the engine are shut. It stays fired.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

constexpr u8 kFireOut = 3;

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.fuel_hp_cock_lh == 0 && ac.fuel_bp_cock_lh == 0 && ac.warn_eng1_ext_fired == 1 &&
        ac.eng1_fire == 1)
        ac.eng1_fire = kFireOut;
}

u32 KCALL fire(PixPoint*, u32) {
    if (ac.warn_eng1_fire == 1 && ac.elec_fire_ext_power == 1)
        ac.warn_eng1_ext_fired = 1;
    return 0;
}
}  // namespace

KESTRANE_GAUGE(eng1_extinct, gauge("kestrane eng1_extinct_jm47", 47, update)
                                 .tip("eng1 extinguisher")
                                 .elements(image(8288, 0x40000003))  // e0 never shown
                                 .mouse(click(0, 0, 47, 45, kCursorHand, fire)))
