// kestrane fuel_qtty_aux_left_jm47: auxiliary fuel quantity of the left side.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

TankPair tanks{token(291), token(292), token(293), token(294)};
ModuleVar fuel_weight = token(306);  // pounds per gallon
ModuleVar third_level = token(289), third_capacity = token(290);
f64 aux = 0.0;   // kg x 10
u8 falling = 0;  // test sweep on its way down

f64 KCALL qty_needle(Element*) {
    return clamp_back(ac.fuel_qty_aux_disp_lh, 0.0, 12000.0);
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    aux_quantity(aux, tanks, fuel_weight, third_level, third_capacity);
    // the needle stays where it is without the 26 V AC bus
    if (ac.elec_ac_26v_bus == 1)
        quantity_needle(ac.fuel_qty_aux_disp_lh, ac.fuel_qty_test_aux_lh, falling, aux, kAuxSweep);
}
}  // namespace

KESTRANE_GAUGE(fuel_qtty_aux_left,
               gauge("kestrane fuel_qtty_aux_left_jm47", 110, update)
                   .help(0xAB26)
                   .elements(image(20816, 0x4001),  // e0 dial
                             needle(20832, 54, 54, 4, 44, kNeedleFlags, qty_needle, aux_qty_scale)))  // e1
