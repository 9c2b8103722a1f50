// kestrane apsurf_rud_jm47, apsurf_ail_jm47 and apsurf_elev_jm47: the host's
// rudder, aileron and elevator positions while the autopilot is engaged;
// the needles rest at 0 otherwise.
#include "guidance/ap_panel.h"

namespace {
using namespace kestrane;

struct Surface {
    ModuleVar& position;  // fraction of travel
    f64& needle;
    f64 lo, hi;  // dial range
};

ModuleVar rudder_pos = token(786), aileron_pos = token(784), elevator_pos = token(782);
f64 rudder_needle = 0, aileron_needle = 0, elevator_needle = 0;

constexpr Surface kRudder{.position = rudder_pos, .needle = rudder_needle, .lo = -45, .hi = 45};
constexpr Surface kAileron{.position = aileron_pos, .needle = aileron_needle, .lo = -40, .hi = 40};
constexpr Surface kElevator{.position = elevator_pos, .needle = elevator_needle, .lo = -26, .hi = 63};

NeedlePoint rudder_scale[] = {{4, 20, -45, 0}, {18, 4, 0, 0}, {32, 20, 45, 0}};
NeedlePoint aileron_scale[] = {{4, 20, -40, 0}, {18, 4, 0, 0}, {32, 20, 40, 0}};
NeedlePoint elevator_scale[] = {{11, 6, -26, 0}, {18, 4, 0, 0}, {33, 22, 63, 0}};

template <const Surface& S>
f64 KCALL surface_needle(Element*) {
    return clamp_back(S.needle, S.lo, S.hi);
}

template <const Surface& S>
void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    S.needle = is_on(host::read(ap::t_engaged)) ? host::read(S.position) * 100 : 0.0;
}
}  // namespace

KESTRANE_GAUGE(apsurf_rud, gauge("kestrane apsurf_rud_jm47", 36, update<kRudder>)
                               .help(0xAA37)
                               .elements(image(42912, 0x4001),  // e0 background
                                         needle(ap::art(16), 18, 30, 1, 24, 0x4003, surface_needle<kRudder>,
                                                rudder_scale, 0, 786)))  // e1 rudder

KESTRANE_GAUGE(apsurf_ail, gauge("kestrane apsurf_ail_jm47", 36, update<kAileron>)
                               .help(0xAA37)
                               .elements(image(42928, 0x4001),  // e0 background
                                         needle(ap::art(17), 18, 30, 1, 24, 0x4003, surface_needle<kAileron>,
                                                aileron_scale, 0, 784)))  // e1 aileron

KESTRANE_GAUGE(apsurf_elev,
               gauge("kestrane apsurf_elev_jm47", 36, update<kElevator>)
                   .help(0xAA37)
                   .elements(image(42944, 0x4001),  // e0 background
                             needle(ap::art(18), 18, 30, 1, 24, 0x4003, surface_needle<kElevator>,
                                    elevator_scale, 0, 782)))  // e1 elevator
