// kestrane eng_n2_left_jm47: engine 1 N2, main needle and units needle,
// driven by the engine value another module of the aircraft publishes.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

Spool spool{};

f64 KCALL main_needle(Element*) {
    return clamp_back(ac.eng1_n2_disp, 0.0, 110.0);
}
f64 KCALL units_needle(Element*) {
    return spool.units;
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    spool_cycle(spool, ac.eng1_n2_disp, "Turbine_N2_1");
}
}  // namespace

KESTRANE_GAUGE(eng_n2_left,
               gauge("kestrane eng_n2_left_jm47", 110, update)
                   .help(0xAB22)
                   .elements(image(20768, 0x4001),                                                  // e0 dial
                             needle(20736, 54, 54, 4, 44, kNeedleFlags, main_needle, spool_scale),  // e1 main
                             needle(20784, 35, 31, 2, 9, kNeedleFlags, units_needle,
                                    spool_units_scale)))  // e2 units
