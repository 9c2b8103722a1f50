// kestrane toggle_pan_ped: invisible toggle of the pedestal panel.
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_ped, gauge("kestrane toggle_pan_ped", 70, click_area_update<0>)
                                   .tip("display/hide pedestal panel")
                                   .elements(image(1616, 0x40004003))  // e0 click area
                                   .mouse(toggle_box(0, 0, 70, 109, toggle_window<window::kPedestal>)))
