// kestrane elec_bus_gen_jm47: generator bus diagram, with the ground power
// plug on the fuselage outline.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

u32 KCALL plug(PixPoint*, u32) {
    ac.elec_gndpwr_plug = ac.elec_gndpwr_plug == 1 ? 0 : 1;
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    show(g, 1, ac.elec_dc_gndpwr_on == 1);
    show(g, 2, ac.elec_gen2_online == 1 && ac.elec_dc_main_bus == 1);
    show(g, 3, ac.elec_gen1_online == 1 && ac.elec_dc_main_bus == 1);
    show(g, 4, ac.elec_gen_bus_shed == 1);
    show(g, 5, ac.elec_gen_bus == 1);
    show(g, 6, ac.elec_gen_bus_twin == 1);
}
}  // namespace

KESTRANE_GAUGE(elec_bus_gen, gauge("kestrane elec_bus_gen_jm47", 450, update)
                                 .elements(image(26304, 0x4001),                    // e0 background
                                           icon(art(19, 1), 382, 120, 0x40000003),  // e1 DC ground power
                                           icon(art(19, 2), 300, 20, 0x40000003),   // e2 generator 2
                                           icon(art(19, 3), 20, 20, 0x40000003),    // e3 generator 1
                                           icon(art(19, 4), 160, 90, 0x40000003),   // e4 shed bus
                                           icon(art(19, 5), 160, 50, 0x40000003),   // e5 generator bus
                                           icon(art(19, 6), 160, 130, 0x40000003))  // e6 twin bus
                                 .mouse(click(382, 157, 38, 38, kCursorHand, plug)))
