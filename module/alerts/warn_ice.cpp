// kestrane warn_ice_jm47: icing detected, on the generator bus.
#include "alerts/warning.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool gen = ac.elec_gen_bus == 1;
    ac.warn_ice_lit = ac.ice_warning == 1 && gen;
    if (ac.warn_ice_lit)
        warn::raise(ac.warn_alert_ice);
    show(g, 0, ac.warn_ice_lit && gen);
    show(g, 1, ac.warn_ice_lit && gen);
    warn::rearm(ac.warn_alert_ice, ac.warn_ice_lit);
    if (!ac.warn_ice_lit)
        warn::release_code(8);
}
}  // namespace

KESTRANE_GAUGE(warn_ice, gauge("kestrane warn_ice_jm47", 83, update)
                             .elements(image(24688, 0x40000002),               // e0 the light
                                       icon(24608, 4, 4, warn::kLightFlags)))  // e1 its legend
