// kestrane toggle_pan_elec: two toggles side by side, the electrical panel
// (right) and the hydraulic and servo-control panels (left). The left box
// also acknowledges the right fuel temperature warning, which has no button
// of its own.
#include "frame/panel_toggle.h"

namespace {
using namespace kestrane;

void acknowledge(u8& state) {
    if (state == 1)
        state = 2;
}

u32 KCALL hydraulic_panels(PixPoint*, u32) {
    host::send_event(kEventWindowToggle, window::kHydraulic);
    host::send_event(kEventWindowToggle, window::kServos);
    acknowledge(ac.warn_rhfueltemp_state);
    acknowledge(ac.fuel_temp_test_lo_rh);
    acknowledge(ac.fuel_temp_test_hi_rh);
    if (ac.warn_alert_code == 4)
        ac.warn_alert_code = 0;
    return 0;
}
}  // namespace

KESTRANE_GAUGE(toggle_pan_elec, gauge("kestrane toggle_pan_elec", 147, click_area_update<0>)
                                    .tip("display/hide electrical or hydraulic/servos panel")
                                    .elements(image(256, 0x40004003))  // e0 click area
                                    .mouse(toggle_box(79, 0, 70, 70, toggle_window<window::kElectrical>),
                                           toggle_box(0, 0, 70, 70, hydraulic_panels)))
