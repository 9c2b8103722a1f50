// kestrane toggle_pan_gps: toggle of the GPS window. Above it sits the
// autopilot disconnect warning light: it watches the autopilot for a
// disconnect (host autopilot off, essential bus or green/blue pressure lost)
// or an approach disconnect, lights for 77 ticks and asks for the gong once.
#include "frame/panel_toggle.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1), gs_valid = token(44), nav_station = token(49), ap_on = token(103),
          throttle1 = token(128), throttle2 = token(163), height = token(614);

constexpr u16 kPressureLow = 1400;
constexpr f64 kWarningTicks = 77.0;

// The host autopilot dropped, or lost its power or its servo pressures.
bool disconnected() {
    return ap_on.value.n == 0.0 || ac.elec_ess_bus == 0 || ac.hyd_green_press <= kPressureLow ||
           ac.hyd_blue_press <= kPressureLow;
}

// In approach with glide slope: above 100 ft, a throttle pulled back, and the
// localizer station or the glide slope lost.
bool approach_disconnect() {
    if (ac.ap_gs_mode == 0)
        return true;
    return height.value.n * 3.281 > 100.0 && (throttle1.value.n < 12800.0 || throttle2.value.n < 12800.0) &&
           (nav_station.value.n == 0.0 || !is_on(gs_valid.value.n));
}

void detect() {
    host::read(nav_station);
    host::read(ap_on);
    host::read(gs_valid);
    host::read(height);
    host::read(throttle1);
    host::read(throttle2);
    if (ac.ap_engaged_latch == 1) {
        if (disconnected())
            ac.ap_disc_state = 1;
        else if (ac.ap_app_latch == 1 && approach_disconnect())
            ac.ap_disc_state = 2;
    }
    if (is_on(ap_on.value.n)) {
        ac.ap_engaged_latch = 1;
        ac.ap_disc_state = 0;
    }
    if (ac.ap_disc_state == 2)
        ac.ap_disc_light = 1;
}

void time_warning() {
    const f64 now = host::read(tick);
    if ((ac.ap_disc_state != 1 && ac.ap_disc_state != 2) || ac.elec_ess_bus != 1)
        return;
    if (ac.ap_disc_timing == 0) {
        ac.ap_disc_deadline = trunc_to<i32>(now + kWarningTicks);
        ac.ap_disc_timing = 1;
    }
    if (static_cast<f64>(ac.ap_disc_deadline) > now) {
        ac.ap_disc_light = 1;
    } else {
        ac.ap_disc_light = 0;
        ac.ap_disc_deadline = 0;
        ac.ap_disc_timing = 0;
        ac.ap_disc_state = 0;
        ac.ap_disc_result = ac.ap_gs_mode == 1 ? 2 : 0;
        ac.ap_engaged_latch = 0;
        ac.ap_app_latch = 0;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    show_click_area(g, 2);
    detect();
    time_warning();
    const bool lit = ac.ap_disc_light == 1 && ac.elec_ess_bus == 1;
    if (lit && ac.warn_alert_apdisc == 0 && ac.ap_disc_result == 0)
        ac.warn_alert_apdisc = 1;
    show(g, 1, lit);
    if (ac.warn_alert_apdisc == 2 && ac.ap_disc_light == 0)
        ac.warn_alert_apdisc = 0;
    if (ac.ap_disc_light == 0 && ac.warn_alert_code == 9)
        ac.warn_alert_code = 0;
}
}  // namespace

// The background is the click-area image again, never shown.
KESTRANE_GAUGE(toggle_pan_gps, gauge("kestrane toggle_pan_gps", 70, update)
                                   .tip("display/hide gps panel")
                                   .elements(image(272, 0x40000000),          // e0
                                             icon(22368, 22, 2, 0x40000003),  // e1 disconnect warning light
                                             icon(272, 0, 0, 0x40004003))     // e2 click area
                                   .mouse(toggle_box(0, 12, 70, 70, toggle_window<window::kGps>)))
