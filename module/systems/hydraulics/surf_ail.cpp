// kestrane surf_ail_jm47: aileron position needle, on the 26 V AC bus with
// working surface hydraulics; otherwise it holds.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar aileron = token(313);

f64 shown_aileron;

f64 KCALL aileron_needle(Element*) {
    return clamp_back(shown_aileron, -22000, 22000);
}

NeedlePoint aileron_scale[] = {{20, 60, -22000, 0}, {60, 20, 0, 0}, {100, 60, 22000, 0}};

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate && ac.elec_ac_26v_bus == 1 && ac.flt_surfaces_frozen == 0)
        shown_aileron = host::read(aileron) * 1.375;
}
}  // namespace

KESTRANE_GAUGE(surf_ail, gauge("kestrane surf_ail_jm47", 121, update)
                             .help(0xAA37)
                             .elements(image(42240, 0x4001),  // e0
                                       needle(42241, 60, 60, 4, 4, 0x4003, aileron_needle, aileron_scale, 0,
                                              313)))  // e1
