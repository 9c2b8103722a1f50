// kestrane warn_servo_jm47: servo-control low pressure. Each servo's light
// comes on with its main supply low; it stays on while the yellow standby
// pressure is low too, and goes to standby (2) once the yellow side holds.
#include "alerts/warning.h"

namespace {
using namespace kestrane;

constexpr u16 kStandbyPress = 1901;

void servo_state(u8& state, u8 low_press, u16 standby_press) {
    if (low_press == 0)
        state = warn::kOff;
    else if (ac.elec_dc_main_bus == 1)
        state = state == warn::kOff || standby_press < kStandbyPress ? warn::kLit : warn::kAcknowledged;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    servo_state(ac.warn_servo1_state, ac.servo_low_press_green, ac.hyd_yellow1_press);
    servo_state(ac.warn_servo2_state, ac.servo_low_press_blue, ac.hyd_yellow2_press);
    const bool lit = ac.warn_servo1_state == warn::kLit || ac.warn_servo2_state == warn::kLit;
    if (lit)
        warn::raise(ac.warn_alert_servo);
    if (lit && ac.elec_dc_main_bus == 1)
        show(g, 0, true);
    else if (!lit)
        show(g, 0, false);
    warn::rearm(ac.warn_alert_servo, lit);
    if (!lit)
        warn::release_code(2);
}
}  // namespace

KESTRANE_GAUGE(warn_servo, gauge("kestrane warn_servo_jm47", 80, update)
                               .elements(image(22912, warn::kLightFlags)))  // e0 the light
