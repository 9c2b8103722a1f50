// kestrane aircondopen_jm47: air conditioning open light, lit at take-off
// thrust with bleed air taken and an engine turning. It needs no bus.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar throttle_1 = token(558), throttle_2 = token(568);
ModuleVar engine_1 = token(624), engine_2 = token(643);

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool takeoff_thrust = host::read(throttle_1) >= 0.97 || host::read(throttle_2) >= 0.97;
    const bool bleed = ac.air_bleed_valve_lh != 0 || ac.air_bleed_valve_rh != 0;
    const bool turning = host::read(engine_1) + host::read(engine_2) > 0.0;
    show(g, 0, takeoff_thrust && bleed && turning);
}
}  // namespace

KESTRANE_GAUGE(aircondopen, gauge("kestrane aircondopen_jm47", 15, update)
                                .elements(image(43040, 0x40004001)))  // e0 air conditioning open light
