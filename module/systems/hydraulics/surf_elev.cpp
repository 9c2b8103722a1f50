// kestrane surf_elev_jm47: elevator position needle and elevator trim mark.
// The needle needs the 26 V AC bus and working surface hydraulics; the trim
// mark follows the host all the time.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar elevator = token(317), trim = token(318);

f64 shown_elevator;  // held without power or with the surfaces frozen
f64 shown_trim;

f64 KCALL elevator_needle(Element*) {
    return clamp_back(shown_elevator, -12000, 30000);
}
f64 KCALL across(Element*) {
    return 1.0;
}
f64 KCALL trim_mark(Element*) {
    return clamp_back(shown_trim, 0, 15);
}

NeedlePoint elevator_scale[] = {{100, 20, 30000, 0}, {100, 60, 0, 0}, {100, 80, -12000, 0}};

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    shown_trim = host::read(trim) / 2000 + 8;
    if (is_on(host::named_get("TRIM_CORR"))) {
        shown_trim += 1.5;
        if (shown_trim > 15)
            shown_trim = 15;
    }
    if (ac.elec_ac_26v_bus == 1 && ac.flt_surfaces_frozen == 0) {
        const f64 v = host::read(elevator);
        shown_elevator = v >= 0 ? v * 1.875 : v * 0.75;
    }
}
}  // namespace

KESTRANE_GAUGE(surf_elev,
               gauge("kestrane surf_elev_jm47", 121, update)
                   .help(0xAA37)
                   .elements(image(42224, 0x4001),                                           // e0
                             moving(42225, 20, 0, 0x4003, across, trim_mark, 0, 10, 0, 15),  // e1 trim
                             needle(42226, 60, 60, 4, 4, 0x4003, elevator_needle, elevator_scale, 0,
                                    317)))  // e2 elevator
