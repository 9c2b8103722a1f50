// kestrane surf_rud_jm47: rudder position needle, on the 26 V AC bus with
// working surface hydraulics; otherwise it holds.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar rudder = token(316);

f64 shown_rudder;

f64 KCALL rudder_needle(Element*) {
    return clamp_back(shown_rudder, -25000, 25000);
}

NeedlePoint rudder_scale[] = {{20, 60, -25000, 0}, {60, 20, 0, 0}, {100, 60, 25000, 0}};

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate && ac.elec_ac_26v_bus == 1 && ac.flt_surfaces_frozen == 0)
        shown_rudder = host::read(rudder) * 1.5625;
}
}  // namespace

KESTRANE_GAUGE(surf_rud,
               gauge("kestrane surf_rud_jm47", 121, update)
                   .help(0xAA37)
                   .elements(image(42256, 0x4001),                                                       // e0
                             needle(42257, 60, 60, 4, 4, 0x4003, rudder_needle, rudder_scale, 0, 316)))  // e1
