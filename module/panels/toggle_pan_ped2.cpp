// kestrane toggle_pan_ped2: close button of the pedestal; closes the ADF 2 / COM 2 radios with it.
#include "frame/panel_toggle.h"

KESTRANE_GAUGE(toggle_pan_ped2,
               gauge("kestrane toggle_pan_ped2", 115, click_area_update<0>)
                   .tip("close pedestal panel")
                   .elements(image(320, 0x40004003))  // e0 click area
                   .mouse(toggle_box(0, 0, 115, 115,
                                     window_events<kEventWindowClose, window::kPedestal, window::kRadios2>)))
