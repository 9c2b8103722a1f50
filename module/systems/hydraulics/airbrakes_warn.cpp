// kestrane airbrakes_warn_jm47: take-off warning, airbrakes out with either
// throttle lever near full.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar left_airbrake = token(326), right_airbrake = token(327), throttle_1 = token(558),
          throttle_2 = token(568);

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool out = host::read(left_airbrake) > 1000 || host::read(right_airbrake) > 1000;
    const bool takeoff_thrust = host::read(throttle_1) > 0.95 || host::read(throttle_2) > 0.95;
    show(g, 0, ac.elec_ess_bus == 1 && out && takeoff_thrust);
}
}  // namespace

KESTRANE_GAUGE(airbrakes_warn, gauge("kestrane airbrakes_warn_jm47", 28, update)
                                   .elements(image(42288, 0x40000007)))  // e0 lamp
