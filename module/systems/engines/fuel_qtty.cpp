// kestrane fuel_qtty_main_left_jm47, fuel_qtty_main_right_jm47,
// fuel_qtty_aux_left_jm47 and fuel_qtty_aux_right_jm47: main and auxiliary
// fuel quantity of each side. The main quantity is also the one the fuel
// system reads.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

TankPair left_tanks{token(291), token(292), token(293), token(294)};
TankPair right_tanks{token(297), token(298), token(299), token(300)};
ModuleVar fuel_weight = token(306);  // pounds per gallon
// both auxiliary gauges fall back on the third tank
ModuleVar third_level = token(289), third_capacity = token(290);

struct QtyGauge {
    TankPair& tanks;
    f64& qty;  // main: kg, the fuel system's; auxiliary: kg x 10, the gauge's own
    f64& disp;
    u8& test;
    u8& falling;  // test sweep on its way down
};

u8 main_left_falling = 0, main_right_falling = 0;
u8 aux_left_falling = 0, aux_right_falling = 0;
f64 aux_left = 0.0, aux_right = 0.0;

constexpr QtyGauge kMainLeft{
    .tanks = left_tanks,
    .qty = ac.fuel_qty_main_lh,
    .disp = ac.fuel_qty_main_disp_lh,
    .test = ac.fuel_qty_test_main_lh,
    .falling = main_left_falling,
};
constexpr QtyGauge kMainRight{
    .tanks = right_tanks,
    .qty = ac.fuel_qty_main_rh,
    .disp = ac.fuel_qty_main_disp_rh,
    .test = ac.fuel_qty_test_main_rh,
    .falling = main_right_falling,
};
constexpr QtyGauge kAuxLeft{
    .tanks = left_tanks,
    .qty = aux_left,
    .disp = ac.fuel_qty_aux_disp_lh,
    .test = ac.fuel_qty_test_aux_lh,
    .falling = aux_left_falling,
};
constexpr QtyGauge kAuxRight{
    .tanks = right_tanks,
    .qty = aux_right,
    .disp = ac.fuel_qty_aux_disp_rh,
    .test = ac.fuel_qty_test_aux_rh,
    .falling = aux_right_falling,
};

template <const QtyGauge& S>
f64 KCALL main_needle(Element*) {
    return clamp_back(S.disp, 0.0, 7000.0);
}
template <const QtyGauge& S>
f64 KCALL aux_needle(Element*) {
    return clamp_back(S.disp, 0.0, 12000.0);
}

// The needles stay where they are without the 26 V AC bus.
template <const QtyGauge& S>
void KCALL main_update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    S.qty = main_quantity(S.tanks, fuel_weight);
    if (ac.elec_ac_26v_bus == 1)
        quantity_needle(S.disp, S.test, S.falling, S.qty, kMainSweep);
}
template <const QtyGauge& S>
void KCALL aux_update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    aux_quantity(S.qty, S.tanks, fuel_weight, third_level, third_capacity);
    if (ac.elec_ac_26v_bus == 1)
        quantity_needle(S.disp, S.test, S.falling, S.qty, kAuxSweep);
}
}  // namespace

KESTRANE_GAUGE(fuel_qtty_main_left,
               gauge("kestrane fuel_qtty_main_left_jm47", 110, main_update<kMainLeft>)
                   .help(0xAB26)
                   .elements(image(20800, 0x4001),  // e0 dial
                             needle(20832, 54, 54, 4, 44, kNeedleFlags, main_needle<kMainLeft>,
                                    main_qty_scale)))  // e1

KESTRANE_GAUGE(fuel_qtty_main_right,
               gauge("kestrane fuel_qtty_main_right_jm47", 110, main_update<kMainRight>)
                   .help(0xAB26)
                   .elements(image(20800, 0x4001),  // e0 dial
                             needle(20832, 54, 54, 4, 44, kNeedleFlags, main_needle<kMainRight>,
                                    main_qty_scale)))  // e1

KESTRANE_GAUGE(fuel_qtty_aux_left,
               gauge("kestrane fuel_qtty_aux_left_jm47", 110, aux_update<kAuxLeft>)
                   .help(0xAB26)
                   .elements(image(20816, 0x4001),  // e0 dial
                             needle(20832, 54, 54, 4, 44, kNeedleFlags, aux_needle<kAuxLeft>,
                                    aux_qty_scale)))  // e1

KESTRANE_GAUGE(fuel_qtty_aux_right,
               gauge("kestrane fuel_qtty_aux_right_jm47", 110, aux_update<kAuxRight>)
                   .help(0xAB26)
                   .elements(image(20816, 0x4001),  // e0 dial
                             needle(20832, 54, 54, 4, 44, kNeedleFlags, aux_needle<kAuxRight>,
                                    aux_qty_scale)))  // e1
