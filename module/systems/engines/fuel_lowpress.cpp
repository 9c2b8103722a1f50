// kestrane fuel_lowpress_lh_jm47 and fuel_lowpress_rh_jm47: fuel low-pressure
// light of each side and its test push-button.
#include "frame/gauge.h"
#include "systems/engines/fuel_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::fuel;

struct LowPressSide {
    i16& press_ind;
    u8& hp_cock;
    u8& test;
    u8& light;
};

constexpr LowPressSide kLeft{.press_ind = ac.fuel_press_ind_lh,
                             .hp_cock = ac.fuel_hp_cock_lh,
                             .test = ac.fuel_lowpress_test_lh,
                             .light = ac.fuel_lowpress_light_lh};
constexpr LowPressSide kRight{.press_ind = ac.fuel_press_ind_rh,
                              .hp_cock = ac.fuel_hp_cock_rh,
                              .test = ac.fuel_lowpress_test_rh,
                              .light = ac.fuel_lowpress_light_rh};

template <const LowPressSide& S>
u32 KCALL test(PixPoint*, u32) {
    lowpress_test(S.test, S.press_ind, S.hp_cock);
    return 0;
}

template <const LowPressSide& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    lowpress_light(g, S.press_ind, S.hp_cock, S.test, S.light);
}
}  // namespace

KESTRANE_GAUGE(fuel_lowpress_lh, gauge("kestrane fuel_lowpress_lh_jm47", 37, update<kLeft>)
                                     .elements(image(9488, 0x4001),            // e0 background
                                               icon(9808, 12, 8, 0x40000003))  // e1 low pressure
                                     .mouse(click(9, 34, 20, 20, kCursorHand, test<kLeft>)))

KESTRANE_GAUGE(fuel_lowpress_rh, gauge("kestrane fuel_lowpress_rh_jm47", 37, update<kRight>)
                                     .elements(image(9488, 0x4001),            // e0 background
                                               icon(9808, 12, 8, 0x40000003))  // e1 low pressure
                                     .mouse(click(9, 34, 20, 20, kCursorHand, test<kRight>)))
