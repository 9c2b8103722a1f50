// kestrane fuel_temp_left_jm47 and fuel_temp_right_jm47: fuel temperature of
// each side, taken from its engine's oil temperature, which the fuel system
// and the warning panel read too.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

struct FuelTempGauge {
    ModuleVar& oil_temp;  // degrees Rankine
    f32& temp;
    f64& disp;
};

ModuleVar oil_temp_1 = token(561), oil_temp_2 = token(571);

constexpr FuelTempGauge kLeft{.oil_temp = oil_temp_1, .temp = ac.fuel_temp_lh, .disp = ac.fuel_temp_disp_lh};
constexpr FuelTempGauge kRight{.oil_temp = oil_temp_2, .temp = ac.fuel_temp_rh, .disp = ac.fuel_temp_disp_rh};

template <const FuelTempGauge& S>
f64 KCALL temp_needle(Element*) {
    return clamp_back(S.disp, -80.0, 150.0);
}

template <const FuelTempGauge& S>
void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    S.temp = fuel_temperature(host::read(S.oil_temp));
    fuel_temp_needle(S.disp, S.temp);
}
}  // namespace

KESTRANE_GAUGE(fuel_temp_left, gauge("kestrane fuel_temp_left_jm47", 110, update<kLeft>)
                                   .elements(image(21088, 0x4001),  // e0 dial
                                             needle(21104, 54, 54, 4, 44, kNeedleFlags, temp_needle<kLeft>,
                                                    fuel_temp_scale)))  // e1

KESTRANE_GAUGE(fuel_temp_right, gauge("kestrane fuel_temp_right_jm47", 110, update<kRight>)
                                    .elements(image(21088, 0x4001),  // e0 dial
                                              needle(21104, 54, 54, 4, 44, kNeedleFlags, temp_needle<kRight>,
                                                     fuel_temp_scale)))  // e1
