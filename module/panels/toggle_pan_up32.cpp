// kestrane toggle_pan_up32: close button on the Upper3 panel (toggles its window).
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_up32, gauge("kestrane toggle_pan_up32", 108, click_area_update<0>)
                                    .tip("close Upper3 panel")
                                    .elements(image(352, 0x40004003))  // e0 click area
                                    .mouse(toggle_box(0, 0, 108, 108, toggle_window<window::kUpper3>)))
