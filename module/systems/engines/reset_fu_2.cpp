// kestrane Reset_fu_2: reset push-button of the engine 2 fuel-used counter.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

ModuleVar tick = token(1);
PushButton button{};

u32 KCALL press(PixPoint*, u32) {
    push_button_press(button, ac.fuel_used_reset_2);
    return 1;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    push_button_cycle(g, button, host::read(tick), 1, 2, &ac.fuel_used_reset_2);
}
}  // namespace

KESTRANE_GAUGE(reset_fu_2, gauge("kestrane Reset_fu_2", 28, update)
                               .elements(image(21040, 0x4001),            // e0
                                         icon(21056, 0, 0, kHiddenIcon),  // e1 released
                                         icon(21072, 0, 0, kHiddenIcon))  // e2 pressed
                               .mouse(repeat(0, 0, 28, 32, kCursorHand, press)))
