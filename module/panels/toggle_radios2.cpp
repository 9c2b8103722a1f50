// kestrane toggle_radios2: the ADF 2 / COM 2 window toggle. It repeats the
// ADF 2 panel's left switch and thousands drum beside the toggle.
#include "frame/drum.h"
#include "frame/panel_toggle.h"
#include "radios/adf.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    show_click_area(g, 1);
    show(g, 2, ac.radio_adf2_sw == 0);
    show(g, 3, ac.radio_adf2_sw == 1);
}
}  // namespace

KESTRANE_GAUGE(toggle_radios2,
               gauge("kestrane toggle_radios2", 79, update)
                   .tip("display/hide ADF2 & COM2")
                   .elements(image(8960, 0x4001),             // e0
                             icon(9232, 11, 77, 0x40004003),  // e1 where the toggle lies
                             icon(8816, 63, 9, 0x40000003),   // e2 ADF 2 left switch down
                             icon(8800, 63, 0, 0x40000003),   // e3 ADF 2 left switch up
                             moving(9216, 66, 42, 0x4003, drum_fixed_x, radios::adf2_thousands_y, 0.0, 1.0,
                                    0.0, 2.0))  // e4 ADF 2 thousands drum
                   .mouse(toggle_box(11, 58, 68, 89, toggle_window<window::kRadios2>)))
