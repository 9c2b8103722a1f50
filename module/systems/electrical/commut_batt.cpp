// kestrane commut_batt_jm47: battery selector. Up couples the batteries,
// down puts both on the engine start; it cannot pass the centre in one move.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

u32 KCALL to_coupled(PixPoint*, u32) {
    if (ac.elec_batt_sel == 0)
        ac.elec_batt_sel = 1;
    return 0;
}
u32 KCALL to_centre(PixPoint*, u32) {
    ac.elec_batt_sel = 0;
    return 0;
}
u32 KCALL to_start(PixPoint*, u32) {
    if (ac.elec_batt_sel == 0)
        ac.elec_batt_sel = 2;
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    show(g, 1, ac.elec_batt_sel == 2);
    show(g, 2, ac.elec_batt_sel == 0);
    show(g, 3, ac.elec_batt_sel == 1);
}
}  // namespace

KESTRANE_GAUGE(commut_batt, gauge("kestrane commut_batt_jm47", 97, update)
                                .elements(image(26848, 0x4001),                   // e0 background
                                          icon(art(53, 1), 17, 180, 0x40000003),  // e1 down: engine start
                                          icon(art(53, 2), 17, 125, 0x40000003),  // e2 centre
                                          icon(art(53, 3), 17, 40, 0x40000003))   // e3 up: coupled
                                .mouse(click(28, 0, 69, 88, kCursorHand, to_coupled),
                                       click(17, 125, 78, 88, kCursorHand, to_centre),
                                       click(28, 251, 69, 88, kCursorHand, to_start)))
