// kestrane toggle_pan_ap: invisible toggle of the autopilot window.
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_ap, gauge("kestrane toggle_pan_ap", 70, click_area_update<0>)
                                  .tip("display/hide autopilot only")
                                  .elements(image(64, 0x40004003))  // e0 click area
                                  .mouse(toggle_box(0, 0, 70, 70, toggle_window<window::kAutopilot>)))
