// kestrane sw_uplight_jm47: panel lighting switch. The panel lighting itself
// comes on in the panel night gauge once a DC bus can feed it.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

u32 KCALL press(PixPoint*, u32) {
    ac.light_panel_state = ac.light_panel_state == 0 ? 3 : 1;
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const u8 state = ac.light_panel_state;
    if (state != 0 && state < 3)
        return;  // switching off: left as it is
    const bool lit = state >= 3;
    show(g, 1, !lit);
    show(g, 2, lit);
    show(g, 3, !lit);
    show(g, 4, lit);
}
}  // namespace

KESTRANE_GAUGE(sw_uplight, gauge("kestrane sw_uplight_jm47", 324, update)
                               .elements(image(26656, 0x4001),                   // e0 background
                                         icon(art(41, 1), 38, 81, 0x40000003),   // e1 left button, unlit
                                         icon(art(41, 2), 38, 81, 0x40000003),   // e2 left button, lit
                                         icon(art(41, 3), 138, 81, 0x40000003),  // e3 right button, unlit
                                         icon(art(41, 4), 138, 81, 0x40000003))  // e4 right button, lit
                               .mouse(click(38, 81, 48, 46, kCursorHand, press),
                                      click(138, 81, 48, 46, kCursorHand, press)))
