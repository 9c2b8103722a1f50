// kestrane oil_testsw_left_jm47: test push-button of the left oil quantity gauge.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

ModuleVar tick = token(1);
PushButton button{};

u32 KCALL press(PixPoint*, u32) {
    return push_button_press(button, ac.oil_qty_test_lh), 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.elec_ac_26v_bus == 1)
        push_button_cycle(g, button, host::read(tick), 0, 1);
}
}  // namespace

KESTRANE_GAUGE(oil_testsw_left, gauge("kestrane oil_testsw_left_jm47", 28, update)
                                    .elements(image(21344, 0x4001),            // e0 released
                                              icon(21360, 0, 0, kHiddenIcon))  // e1 pressed
                                    .mouse(click(0, 0, 28, 32, kCursorHand, press)))
