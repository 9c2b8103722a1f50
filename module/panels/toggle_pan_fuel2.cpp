// kestrane toggle_pan_fuel2: close button on the fuel panel (toggles its window).
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_fuel2, gauge("kestrane toggle_pan_fuel2", 70, click_area_update<0>)
                                     .tip("close fuel panel")
                                     .elements(image(1600, 0x40004003))  // e0 click area
                                     .mouse(toggle_box(0, 0, 70, 70, toggle_window<window::kFuel>)))
