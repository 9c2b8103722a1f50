// kestrane toggle_pan_gear: invisible toggle of the gear indicator window.
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_gear, gauge("kestrane toggle_pan_gear", 80, click_area_update<0>)
                                    .tip("display/hide gear ind. panel")
                                    .elements(image(304, 0x40004003))  // e0 click area
                                    .mouse(toggle_box(0, 0, 80, 70, toggle_window<window::kGear>)))
