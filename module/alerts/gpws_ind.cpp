// kestrane gpws_ind_jm47: GPWS alert lights, pull-up and glide slope. Its
// click shows or hides where the invisible panel toggles are.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

constexpr i16 kGlideSlopeMode = 50;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool ess = ac.elec_ess_bus == 1;
    show(g, 1, ess && ac.gpws_mode != 0 && ac.gpws_mode != kGlideSlopeMode);
    show(g, 2, ess && ac.gpws_mode == kGlideSlopeMode);
}

u32 KCALL toggle_click_areas(PixPoint*, u32) {
    ac.panel_click_areas = ac.panel_click_areas == 0 ? 1 : 0;
    return 0;
}
}  // namespace

KESTRANE_GAUGE(gpws_ind, gauge("kestrane gpws_ind_jm47", 56, update)
                             .tip("GPWS / displays windows click areas")
                             .elements(image(13872, 0x1),               // e0 background
                                       icon(13904, 2, 2, 0x40000003),   // e1 pull-up
                                       icon(13888, 31, 2, 0x40000003))  // e2 glide slope
                             .mouse(click(0, 0, 56, 27, kCursorHand, toggle_click_areas)))
