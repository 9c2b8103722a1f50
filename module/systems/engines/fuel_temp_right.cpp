// kestrane fuel_temp_right_jm47: right fuel temperature, which the fuel system
// and the warning panel read too.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

ModuleVar oil_temp = token(571);  // degrees Rankine

f64 KCALL temp_needle(Element*) {
    return clamp_back(ac.fuel_temp_disp_rh, -80.0, 150.0);
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    ac.fuel_temp_rh = fuel_temperature(host::read(oil_temp));
    fuel_temp_needle(ac.fuel_temp_disp_rh, ac.fuel_temp_rh);
}
}  // namespace

KESTRANE_GAUGE(fuel_temp_right,
               gauge("kestrane fuel_temp_right_jm47", 110, update)
                   .elements(image(21088, 0x4001),  // e0 dial
                             needle(21104, 54, 54, 4, 44, kNeedleFlags, temp_needle, fuel_temp_scale)))  // e1
