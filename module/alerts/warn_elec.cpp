// kestrane warn_elec_jm47: electrical fault, repeating the electrical panel's
// fault light on the DC main bus.
#include "alerts/warning.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool fault = ac.elec_fault_light == 1;
    const bool lit = fault && ac.elec_dc_main_bus == 1;
    if (lit)
        warn::raise(ac.warn_alert_elec);
    show(g, 0, lit);
    show(g, 1, lit);
    warn::rearm(ac.warn_alert_elec, fault);
    if (ac.elec_fault_light == 0)
        warn::release_code(3);
}
}  // namespace

KESTRANE_GAUGE(warn_elec, gauge("kestrane warn_elec_jm47", 83, update)
                              .elements(image(24688, 0x40000002),               // e0 the light
                                        icon(22832, 4, 4, warn::kLightFlags)))  // e1 its legend
