// kestrane toggle_pan_up2: invisible toggle of the Upper2 panel.
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_up2, gauge("kestrane toggle_pan_up2", 85, click_area_update<0>)
                                   .tip("display/hide Upper2 panel")
                                   .elements(image(96, 0x40004003))  // e0 click area
                                   .mouse(toggle_box(0, 0, 70, 70, toggle_window<window::kUpper2>)))
