// kestrane oil_press_jm47: oil pressure of both engines on one dial.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

ModuleVar press_1 = token(562), press_2 = token(572);

f64 KCALL needle_1(Element*) {
    return clamp_back(ac.oil_press_disp_lh, 0.0, 10000.0);
}
f64 KCALL needle_2(Element*) {
    return clamp_back(ac.oil_press_disp_rh, 0.0, 10000.0);
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.elec_ac_26v_bus != 1)
        return;  // both needles stay where they are
    ac.oil_press_disp_lh = oil_pressure(host::read(press_1));
    ac.oil_press_disp_rh = oil_pressure(host::read(press_2));
}
}  // namespace

KESTRANE_GAUGE(oil_press, gauge("kestrane oil_press_jm47", 110, update)
                              .help(0xAB4E)
                              .elements(image(21120, 0x4001),  // e0 dial
                                        needle(21248, 54, 54, 4, 44, kNeedleFlags, needle_1,
                                               oil_press_scale_1),  // e1 engine 1
                                        needle(21264, 54, 54, 4, 44, kNeedleFlags, needle_2,
                                               oil_press_scale_2)))  // e2 engine 2
