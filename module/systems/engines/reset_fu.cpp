// kestrane Reset_fu_1 and Reset_fu_2: reset push-buttons of the fuel-used
// counters of engines 1 and 2. The counter gauge runs earlier in the cycle
// and sees the request before the button takes it back (engine 2's counter
// takes it back itself).
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

struct ResetButton {
    PushButton& button;
    u8& reset;
};

ModuleVar tick = token(1);
PushButton button_1{}, button_2{};

constexpr ResetButton kEngine1{.button = button_1, .reset = ac.fuel_used_reset_1};
constexpr ResetButton kEngine2{.button = button_2, .reset = ac.fuel_used_reset_2};

template <const ResetButton& S>
u32 KCALL press(PixPoint*, u32) {
    push_button_press(S.button, S.reset);
    return 1;
}

template <const ResetButton& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    push_button_cycle(g, S.button, host::read(tick), 1, 2, &S.reset);
}
}  // namespace

KESTRANE_GAUGE(reset_fu_1, gauge("kestrane Reset_fu_1", 28, update<kEngine1>)
                               .elements(image(21040, 0x4001),            // e0
                                         icon(21056, 0, 0, kHiddenIcon),  // e1 released
                                         icon(21072, 0, 0, kHiddenIcon))  // e2 pressed
                               .mouse(repeat(0, 0, 28, 32, kCursorHand, press<kEngine1>)))

KESTRANE_GAUGE(reset_fu_2, gauge("kestrane Reset_fu_2", 28, update<kEngine2>)
                               .elements(image(21040, 0x4001),            // e0
                                         icon(21056, 0, 0, kHiddenIcon),  // e1 released
                                         icon(21072, 0, 0, kHiddenIcon))  // e2 pressed
                               .mouse(repeat(0, 0, 28, 32, kCursorHand, press<kEngine2>)))
