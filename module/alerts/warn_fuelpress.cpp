// kestrane warn_lhfuelpress_jm47 and warn_rhfuelpress_jm47: fuel pressure low
// at an engine whose HP cock is open, or the low-pressure test. Not
// acknowledgeable.
#include "alerts/warning.h"

namespace {
using namespace kestrane;

constexpr i16 kLowPress = 50;

struct FuelPressLight {
    u8& hp_cock;
    i16& press;
    u8& test;
    u8& lit;
    u8& request;
    u8 code;
};

constexpr FuelPressLight kLeft{.hp_cock = ac.fuel_hp_cock_lh,
                               .press = ac.fuel_press_lh,
                               .test = ac.fuel_lowpress_test_lh,
                               .lit = ac.warn_lhfuelpress_lit,
                               .request = ac.warn_alert_lhfuelpress,
                               .code = 11};
constexpr FuelPressLight kRight{.hp_cock = ac.fuel_hp_cock_rh,
                                .press = ac.fuel_press_rh,
                                .test = ac.fuel_lowpress_test_rh,
                                .lit = ac.warn_rhfuelpress_lit,
                                .request = ac.warn_alert_rhfuelpress,
                                .code = 12};

template <const FuelPressLight& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool low = (S.hp_cock == 1 && S.press < kLowPress) || S.test == 1;
    S.lit = low && ac.elec_ess_bus == 1;
    if (S.lit)
        warn::raise(S.request);
    show(g, 0, S.lit);
    if (warn::rearm(S.request, S.lit || S.test != 0))
        warn::release_code(S.code);
}
}  // namespace

KESTRANE_GAUGE(warn_lhfuelpress, gauge("kestrane warn_lhfuelpress_jm47", 76, update<kLeft>)
                                     .elements(image(24656, warn::kLightFlags)))  // e0 the light

KESTRANE_GAUGE(warn_rhfuelpress, gauge("kestrane warn_rhfuelpress_jm47", 41, update<kRight>)
                                     .elements(image(24672, warn::kLightFlags)))  // e0 the light
