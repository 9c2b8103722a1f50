// kestrane elec_dcvolt_sel_jm47: DC voltmeter selector knob and its test
// button (the meter reads 0 while the button is held).
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

u32 KCALL sel_down(PixPoint*, u32) {
    elec_a::knob_down(ac.elec_dc_volt_sel);
    return 0;
}
u32 KCALL sel_up(PixPoint*, u32) {
    elec_a::knob_up(ac.elec_dc_volt_sel);
    return 0;
}
u32 KCALL test(PixPoint*, u32) {
    spring_press(ac.elec_dc_volt_test);
    return 0;
}

f64 KCALL knob(Element*) {
    return ac.elec_dc_volt_sel;
}

NeedlePoint knob_scale[] = {{29, 156, 0, 0}, {32, 126, 1, 0}, {49, 113, 2, 0},
                            {69, 113, 3, 0}, {86, 126, 4, 0}, {89, 156, 5, 0}};

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    spring_release(ac.elec_dc_volt_test);
}
}  // namespace

KESTRANE_GAUGE(elec_dcvolt_sel,
               gauge("kestrane elec_dcvolt_sel_jm47", 122, update)
                   .elements(image(26368, 0x4001),                                         // e0 background
                             needle(art(23, 1), 59, 141, 5, 5, 0x4003, knob, knob_scale))  // e1 selector knob
                   .mouse(click(2, 100, 57, 83, kCursorDown, sel_down),
                          click(59, 100, 57, 83, kCursorUp, sel_up),
                          repeat(46, 22, 30, 30, kCursorHand, test)))
