// kestrane fuel_testsw_main_left_jm47, fuel_testsw_main_right_jm47,
// fuel_testsw_aux_left_jm47, fuel_testsw_aux_right_jm47, oil_testsw_left_jm47
// and oil_testsw_right_jm47: test push-buttons of the fuel and oil quantity
// gauges; the needle sweeps to full scale and back while powered.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

struct TestButton {
    PushButton& button;
    u8& request;  // the quantity gauge's test
};

ModuleVar tick = token(1);
PushButton main_left{}, main_right{}, aux_left{}, aux_right{}, oil_left{}, oil_right{};

constexpr TestButton kMainLeft{.button = main_left, .request = ac.fuel_qty_test_main_lh};
constexpr TestButton kMainRight{.button = main_right, .request = ac.fuel_qty_test_main_rh};
constexpr TestButton kAuxLeft{.button = aux_left, .request = ac.fuel_qty_test_aux_lh};
constexpr TestButton kAuxRight{.button = aux_right, .request = ac.fuel_qty_test_aux_rh};
constexpr TestButton kOilLeft{.button = oil_left, .request = ac.oil_qty_test_lh};
constexpr TestButton kOilRight{.button = oil_right, .request = ac.oil_qty_test_rh};

template <const TestButton& S>
u32 KCALL press(PixPoint*, u32) {
    return push_button_press(S.button, S.request), 0;
}

template <const TestButton& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.elec_ac_26v_bus == 1)
        push_button_cycle(g, S.button, host::read(tick), 0, 1);
}
}  // namespace

KESTRANE_GAUGE(fuel_testsw_main_left, gauge("kestrane fuel_testsw_main_left_jm47", 20, update<kMainLeft>)
                                          .elements(image(20848, 0x4001),            // e0 released
                                                    icon(20864, 0, 0, kHiddenIcon))  // e1 pressed
                                          .mouse(click(0, 0, 28, 32, kCursorHand, press<kMainLeft>)))

KESTRANE_GAUGE(fuel_testsw_main_right, gauge("kestrane fuel_testsw_main_right_jm47", 20, update<kMainRight>)
                                           .elements(image(20848, 0x4001),            // e0 released
                                                     icon(20864, 0, 0, kHiddenIcon))  // e1 pressed
                                           .mouse(click(0, 0, 28, 32, kCursorHand, press<kMainRight>)))

KESTRANE_GAUGE(fuel_testsw_aux_left, gauge("kestrane fuel_testsw_aux_left_jm47", 20, update<kAuxLeft>)
                                         .elements(image(20848, 0x4001),            // e0 released
                                                   icon(20864, 0, 0, kHiddenIcon))  // e1 pressed
                                         .mouse(click(0, 0, 28, 32, kCursorHand, press<kAuxLeft>)))

KESTRANE_GAUGE(fuel_testsw_aux_right, gauge("kestrane fuel_testsw_aux_right_jm47", 20, update<kAuxRight>)
                                          .elements(image(20848, 0x4001),            // e0 released
                                                    icon(20864, 0, 0, kHiddenIcon))  // e1 pressed
                                          .mouse(click(0, 0, 28, 32, kCursorHand, press<kAuxRight>)))

KESTRANE_GAUGE(oil_testsw_left, gauge("kestrane oil_testsw_left_jm47", 28, update<kOilLeft>)
                                    .elements(image(21344, 0x4001),            // e0 released
                                              icon(21360, 0, 0, kHiddenIcon))  // e1 pressed
                                    .mouse(click(0, 0, 28, 32, kCursorHand, press<kOilLeft>)))

KESTRANE_GAUGE(oil_testsw_right, gauge("kestrane oil_testsw_right_jm47", 28, update<kOilRight>)
                                     .elements(image(21344, 0x4001),            // e0 released
                                               icon(21360, 0, 0, kHiddenIcon))  // e1 pressed
                                     .mouse(click(0, 0, 28, 32, kCursorHand, press<kOilRight>)))
