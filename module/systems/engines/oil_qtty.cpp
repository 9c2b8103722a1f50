// kestrane oil_qtty_left_jm47 and oil_qtty_right_jm47: engine oil quantity.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

ModuleVar oil_quantity = token(270);  // both engines' gauges show this one value

struct OilQtyGauge {
    f64& disp;
    u8& test;
    u8& falling;  // test sweep on its way down
};

u8 left_falling = 0, right_falling = 0;

constexpr OilQtyGauge kLeft{.disp = ac.oil_qty_disp_lh, .test = ac.oil_qty_test_lh, .falling = left_falling};
constexpr OilQtyGauge kRight{
    .disp = ac.oil_qty_disp_rh, .test = ac.oil_qty_test_rh, .falling = right_falling};

template <const OilQtyGauge& S>
f64 KCALL qty_needle(Element*) {
    return clamp_back(S.disp, 0.0, 18000.0);
}

template <const OilQtyGauge& S>
void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.elec_ac_26v_bus != 1)
        return;  // the needle stays where it is
    quantity_needle(S.disp, S.test, S.falling, host::read(oil_quantity) / 2.0, kOilSweep);
}
}  // namespace

KESTRANE_GAUGE(oil_qtty_left, gauge("kestrane oil_qtty_left_jm47", 110, update<kLeft>)
                                  .help(0xA41A)
                                  .elements(image(21280, 0x4001),  // e0 dial
                                            needle(21296, 54, 54, 4, 44, kNeedleFlags, qty_needle<kLeft>,
                                                   oil_qty_scale)))  // e1

KESTRANE_GAUGE(oil_qtty_right, gauge("kestrane oil_qtty_right_jm47", 110, update<kRight>)
                                   .help(0xA41A)
                                   .elements(image(21280, 0x4001),  // e0 dial
                                             needle(21296, 54, 54, 4, 44, kNeedleFlags, qty_needle<kRight>,
                                                    oil_qty_scale)))  // e1
