// kestrane toggle_pan_fail: invisible toggle of the failures panel.
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_fail,
               gauge("kestrane toggle_pan_fail", 70, click_area_update<0>)
                   .tip("display/hide failures panel")
                   .elements(image(1632, 0x40004003))  // e0 click area
                   .mouse(toggle_box(0, 0, 70, 61, window_events<kEventWindowToggle, window::kFailures>)))
