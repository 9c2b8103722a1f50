// kestrane eng_temp_right_jm47: engine 2 exhaust gas temperature, main needle
// and hundreds needle, with the OFF flag when the 26 V AC bus is lost.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

ModuleVar egt = token(650);  // degrees Rankine
f64 hundreds = 0.0;          // the small needle: what is left over the hundreds

f64 KCALL main_needle(Element*) {
    return clamp_back(ac.eng2_egt_disp, 100.0, 1200.0);
}
f64 KCALL hundreds_needle(Element*) {
    return hundreds;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    egt_cycle(g, ac.eng2_egt_disp, hundreds, host::read(egt));
}
}  // namespace

KESTRANE_GAUGE(eng_temp_right,
               gauge("kestrane eng_temp_right_jm47", 110, update)
                   .help(0xAB23)
                   .elements(image(20592, 0x4001),              // e0 dial
                             icon(20608, 40, 65, kHiddenIcon),  // e1 OFF flag
                             needle(20736, 54, 54, 4, 44, kNeedleFlags, main_needle, egt_scale),  // e2 main
                             needle(20752, 86, 53, 2, 9, kNeedleFlags, hundreds_needle,
                                    egt_hundreds_scale)))  // e3
