// kestrane toggle_pan_clock: invisible toggle of the clock window.
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_clock, gauge("kestrane toggle_pan_clock", 70, click_area_update<0>)
                                     .tip("display/hide clock")
                                     .elements(image(48, 0x40004003))  // e0 click area
                                     .mouse(toggle_box(0, 0, 70, 70, toggle_window<window::kClock>)))
