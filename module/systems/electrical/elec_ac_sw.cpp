// kestrane elec_ac_sw_jm47: AC voltmeter selector and the two-position panel
// switch beside it. The callback feeds the AC voltmeter.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

u32 KCALL sel_down(PixPoint*, u32) {
    elec_a::knob_down(ac.elec_ac_volt_sel);
    return 0;
}
u32 KCALL sel_up(PixPoint*, u32) {
    elec_a::knob_up(ac.elec_ac_volt_sel);
    return 0;
}
u32 KCALL panel_1(PixPoint*, u32) {
    set_switch(ac.elec_ac_panel_sw, 1);
    return 0;
}
u32 KCALL panel_2(PixPoint*, u32) {
    set_switch(ac.elec_ac_panel_sw, 2);
    return 0;
}

f64 KCALL knob(Element*) {
    return ac.elec_ac_volt_sel;
}

NeedlePoint knob_scale[] = {{32, 60, 0, 0}, {35, 30, 1, 0}, {52, 17, 2, 0},
                            {72, 17, 3, 0}, {89, 30, 4, 0}, {92, 60, 5, 0}};

u8 ac_voltmeter() {
    switch (ac.elec_ac_volt_sel) {
        case 1:
        case 3:
            return ac.elec_ac_bus_1 == 1 ? 115 : 0;
        case 2:
        case 4:
            return ac.elec_ac_bus_2 == 1 ? 115 : 0;
        case 5:
            return ac.elec_ac_26v_bus == 1 ? 26 : 0;
        default:
            return 0;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    ac.elec_ac_volts = ac_voltmeter();
    show(g, 1, ac.elec_ac_panel_sw == 1);
    show(g, 2, ac.elec_ac_panel_sw == 2);
}
}  // namespace

KESTRANE_GAUGE(elec_ac_sw,
               gauge("kestrane elec_ac_sw_jm47", 121, update)
                   .elements(image(26320, 0x4001),                                        // e0 background
                             icon(art(20, 1), 17, 105, 0x40000003),                       // e1 switch at 1
                             icon(art(20, 2), 62, 105, 0x40000003),                       // e2 switch at 2
                             needle(art(20, 3), 62, 45, 5, 5, 0x4003, knob, knob_scale))  // e3 selector knob
                   .mouse(click(11, 5, 51, 81, kCursorDown, sel_down),
                          click(62, 5, 51, 81, kCursorUp, sel_up),
                          click(17, 105, 45, 37, kCursorHand, panel_1),
                          click(62, 105, 45, 37, kCursorHand, panel_2)))
