// kestrane warn_cabinexcalt_jm47: cabin altitude too high. The gong request
// is raised by the pressurization; the light gives the code back when the
// cabin is down again.
#include "alerts/warning.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool lit = ac.elec_ess_bus == 1 && ac.air_cabin_alt_excess == 1;
    show(g, 0, lit);
    show(g, 1, lit);
    if (ac.air_cabin_alt_excess == 0)
        warn::release_code(13);
}
}  // namespace

KESTRANE_GAUGE(warn_cabinexcalt, gauge("kestrane warn_cabinexcalt_jm47", 83, update)
                                     .elements(image(24688, 0x40000002),               // e0 the light
                                               icon(24576, 4, 4, warn::kLightFlags)))  // e1 its legend
