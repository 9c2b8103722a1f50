// kestrane airbrakes_ind_jm47: in-transit and extended lamps of both
// airbrakes, on the essential bus. With green pressure low an airbrake
// counts as retracted up to 2000 instead of 1000.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar left_airbrake = token(326), right_airbrake = token(327);

constexpr f64 kExtended = 16000;

void lamps(GaugeHeader* g, f64 position, bool powered, int transit, int extended) {
    const f64 retracted = ac.flt_airbrake_retract_thr;
    show(g, transit, powered && position > retracted && position < kExtended);
    show(g, extended, powered && position >= kExtended);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    ac.flt_airbrake_retract_thr = ac.hyd_green_press < 1751 ? 2000 : 1000;
    const bool powered = ac.elec_ess_bus == 1;
    lamps(g, host::read(left_airbrake), powered, 1, 3);
    lamps(g, host::read(right_airbrake), powered, 2, 4);
}
}  // namespace

KESTRANE_GAUGE(airbrakes_ind, gauge("kestrane airbrakes_ind_jm47", 76, update)
                                  .elements(image(42272, 0x4001),             // e0
                                            icon(42273, 6, 4, 0x40000003),    // e1 left in transit
                                            icon(42274, 40, 4, 0x40000003),   // e2 right in transit
                                            icon(42275, 6, 4, 0x40000003),    // e3 left extended
                                            icon(42276, 40, 4, 0x40000003)))  // e4 right extended
