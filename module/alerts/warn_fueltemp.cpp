// kestrane warn_lhfueltemp_jm47 and warn_rhfueltemp_jm47: fuel temperature out
// of 3 to 53 degrees, or a temperature test. Both share gong code 4; the left
// light's click acknowledges the left side (the right one is acknowledged from
// the electrical panel).
#include "alerts/warning.h"

namespace {
using namespace kestrane;

constexpr u8 kCode = 4;
constexpr f32 kLowTemp = 3.0f, kHighTemp = 53.0f;

struct FuelTempLight {
    f32& temp;
    u8& test_lo;
    u8& test_hi;
    u8& state;
    u8& request;
};

constexpr FuelTempLight kLeft{ac.fuel_temp_lh, ac.fuel_temp_test_lo_lh, ac.fuel_temp_test_hi_lh,
                              ac.warn_lhfueltemp_state, ac.warn_alert_lhfueltemp};
constexpr FuelTempLight kRight{ac.fuel_temp_rh, ac.fuel_temp_test_lo_rh, ac.fuel_temp_test_hi_rh,
                               ac.warn_rhfueltemp_state, ac.warn_alert_rhfueltemp};

void fueltemp_cycle(GaugeHeader* g, const FuelTempLight& s) {
    const bool testing = s.test_lo == 1 || s.test_hi == 1;
    const bool in_range = s.temp >= kLowTemp && s.temp <= kHighTemp;
    if ((in_range && !testing) || ac.elec_ess_bus != 1) {
        s.state = warn::kOff;
    } else if (s.state != warn::kAcknowledged) {
        s.state = warn::kLit;
        warn::raise(s.request);
    }
    const bool active = s.state == warn::kLit || testing;
    show(g, 0, active && ac.elec_dc_main_bus == 1);
    warn::rearm(s.request, active);
}

void KCALL update_left(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    fueltemp_cycle(g, kLeft);
    if (ac.warn_alert_lhfueltemp != 1 && ac.warn_alert_rhfueltemp != 1)
        warn::release_code(kCode);
}

void KCALL update_right(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        fueltemp_cycle(g, kRight);
}

u32 KCALL acknowledge_left(PixPoint*, u32) {
    warn::acknowledge(ac.warn_lhfueltemp_state);
    warn::acknowledge(ac.fuel_temp_test_lo_lh);
    warn::acknowledge(ac.fuel_temp_test_hi_lh);
    warn::release_code(kCode);
    return 0;
}
}  // namespace

KESTRANE_GAUGE(warn_lhfueltemp,
               gauge("kestrane warn_lhfueltemp_jm47", 82, update_left)
                   .elements(image(24624, warn::kLightFlags))  // e0 the light
                   .mouse(click(0, 0, warn::kBoxW, warn::kBoxH, kCursorHand, acknowledge_left)))

KESTRANE_GAUGE(warn_rhfueltemp, gauge("kestrane warn_rhfueltemp_jm47", 87, update_right)
                                    .elements(image(24640, warn::kLightFlags)))  // e0 the light
