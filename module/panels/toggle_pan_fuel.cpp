// kestrane toggle_pan_fuel: invisible toggle of the fuel panel.
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_fuel, gauge("kestrane toggle_pan_fuel", 70, click_area_update<0>)
                                    .tip("display/hide fuel panel")
                                    .elements(image(1584, 0x40004003))  // e0 click area
                                    .mouse(toggle_box(0, 0, 70, 70, toggle_window<window::kFuel>)))
