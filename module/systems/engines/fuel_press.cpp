// kestrane fuel_press_jm47: line pressure of both sides and the twin-needle
// pressure indicator, which follows the lines only while the 26 V AC bus is
// powered.
#include "frame/gauge.h"
#include "systems/engines/fuel_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::fuel;

ModuleVar n2_1 = token(625), n2_2 = token(644);

f64 KCALL left_needle(Element*) {
    return clamp_back(ac.fuel_press_ind_lh, 0, 500);
}
f64 KCALL right_needle(Element*) {
    return clamp_back(ac.fuel_press_ind_rh, 0, 500);
}

// 0 at lower left, 250 (nominal) at the top, 500 at lower right.
NeedlePoint press_scale[] = {{26, 81, 0, 0},   {15, 47, 100, 0}, {36, 17, 200, 0}, {54, 13, 250, 0},
                             {72, 17, 300, 0}, {93, 47, 400, 0}, {82, 81, 500, 0}};

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    // an engine running on a line, its own or across the crossfeed
    const bool running_1 = host::read(n2_1) > 20.0;
    const bool running_2 = host::read(n2_2) > 20.0;
    const bool crossfeed = ac.fuel_crossfeed == 1;
    ac.fuel_demand_eng1 = running_1 || (crossfeed && running_2);
    ac.fuel_demand_eng2 = running_2 || (crossfeed && running_1);

    const bool left_valve = ac.fuel_valve_lh == 1, right_valve = ac.fuel_valve_rh == 1;
    ac.fuel_press_lh = line_pressure(ac.fuel_press_lh, ac.fuel_press_rh, left_valve, right_valve, crossfeed,
                                     kLeftPumps, ac.fuel_demand_eng1 == 1);
    ac.fuel_press_rh = line_pressure(ac.fuel_press_rh, ac.fuel_press_lh, right_valve, left_valve, crossfeed,
                                     kRightPumps, ac.fuel_demand_eng2 == 1);
    if (ac.elec_ac_26v_bus == 1) {
        ac.fuel_press_ind_lh = ac.fuel_press_lh;
        ac.fuel_press_ind_rh = ac.fuel_press_rh;
    }
}
}  // namespace

KESTRANE_GAUGE(fuel_press,
               gauge("kestrane fuel_press_jm47", 108, update)
                   .help(0xAB4E)
                   .elements(image(9344, 0x4001),                                              // e0 dial
                             needle(9824, 54, 53, 4, 36, 0x4003, left_needle, press_scale),    // e1 left
                             needle(9840, 54, 53, 4, 36, 0x4003, right_needle, press_scale)))  // e2 right
