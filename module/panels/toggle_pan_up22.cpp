// kestrane toggle_pan_up22: close button on the Upper2 panel (toggles its window).
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_up22, gauge("kestrane toggle_pan_up22", 70, click_area_update<0>)
                                    .tip("close Upper2 panel")
                                    .elements(image(336, 0x40004003))  // e0 click area
                                    .mouse(toggle_box(0, 0, 70, 70, toggle_window<window::kUpper2>)))
