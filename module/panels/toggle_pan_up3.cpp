// kestrane toggle_pan_up3: invisible toggle of the Upper3 panel.
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_up3, gauge("kestrane toggle_pan_up3", 85, click_area_update<0>)
                                   .tip("display/hide Upper3 panel")
                                   .elements(image(112, 0x40004003))  // e0 click area
                                   .mouse(toggle_box(0, 0, 85, 70, toggle_window<window::kUpper3>)))
