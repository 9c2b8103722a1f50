// kestrane fuel_testsw_aux_left_jm47: test push-button of the left auxiliary
// fuel quantity gauge; the needle sweeps to full scale and back while powered.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

ModuleVar tick = token(1);
PushButton button{};

u32 KCALL press(PixPoint*, u32) {
    return push_button_press(button, ac.fuel_qty_test_aux_lh), 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.elec_ac_26v_bus == 1)
        push_button_cycle(g, button, host::read(tick), 0, 1);
}
}  // namespace

KESTRANE_GAUGE(fuel_testsw_aux_left, gauge("kestrane fuel_testsw_aux_left_jm47", 20, update)
                                         .elements(image(20848, 0x4001),            // e0 released
                                                   icon(20864, 0, 0, kHiddenIcon))  // e1 pressed
                                         .mouse(click(0, 0, 28, 32, kCursorHand, press)))
