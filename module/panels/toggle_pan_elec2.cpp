// kestrane toggle_pan_elec2: close button on the electrical panel (toggles its window).
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_elec2, gauge("kestrane toggle_pan_elec2", 51, click_area_update<0>)
                                     .tip("close electrical panel")
                                     .elements(image(128, 0x40004003))  // e0 click area
                                     .mouse(toggle_box(0, 0, 51, 136, toggle_window<window::kElectrical>)))
