// kestrane oil_qtty_left_jm47: left engine oil quantity.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

ModuleVar oil_quantity = token(270);  // both engines' gauges show this one value
u8 falling = 0;                       // test sweep on its way down

f64 KCALL qty_needle(Element*) {
    return clamp_back(ac.oil_qty_disp_lh, 0.0, 18000.0);
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.elec_ac_26v_bus != 1)
        return;  // the needle stays where it is
    quantity_needle(ac.oil_qty_disp_lh, ac.oil_qty_test_lh, falling, host::read(oil_quantity) / 2.0,
                    kOilSweep);
}
}  // namespace

KESTRANE_GAUGE(oil_qtty_left,
               gauge("kestrane oil_qtty_left_jm47", 110, update)
                   .help(0xA41A)
                   .elements(image(21280, 0x4001),  // e0 dial
                             needle(21296, 54, 54, 4, 44, kNeedleFlags, qty_needle, oil_qty_scale)))  // e1
