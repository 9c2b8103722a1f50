// kestrane fuel_lowlvl_lh_jm47 and fuel_lowlvl_rh_jm47: main tank low-level
// light of each side and its test push-button.
#include "frame/gauge.h"
#include "systems/engines/fuel_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::fuel;

struct LowLevelSide {
    f64& qty_main;
    u8& test;
    u8& light;
};

constexpr LowLevelSide kLeft{
    .qty_main = ac.fuel_qty_main_lh, .test = ac.fuel_lowlvl_test_lh, .light = ac.fuel_lowlvl_light_lh};
constexpr LowLevelSide kRight{
    .qty_main = ac.fuel_qty_main_rh, .test = ac.fuel_lowlvl_test_rh, .light = ac.fuel_lowlvl_light_rh};

template <const LowLevelSide& S>
u32 KCALL test(PixPoint*, u32) {
    lowlvl_test(S.test, S.qty_main);
    return 0;
}

template <const LowLevelSide& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    lowlvl_light(g, S.qty_main, S.test, S.light);
}
}  // namespace

KESTRANE_GAUGE(fuel_lowlvl_lh, gauge("kestrane fuel_lowlvl_lh_jm47", 37, update<kLeft>)
                                   .elements(image(9488, 0x4001),            // e0 background
                                             icon(9776, 12, 8, 0x40000003))  // e1 low level
                                   .mouse(click(9, 34, 20, 20, kCursorHand, test<kLeft>)))

KESTRANE_GAUGE(fuel_lowlvl_rh, gauge("kestrane fuel_lowlvl_rh_jm47", 37, update<kRight>)
                                   .elements(image(9488, 0x4001),            // e0 background
                                             icon(9776, 12, 8, 0x40000003))  // e1 low level
                                   .mouse(click(9, 34, 20, 20, kCursorHand, test<kRight>)))
