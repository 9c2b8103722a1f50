// kestrane pressu_cabinxs_jm47: cabin altitude excess light with its gong
// request, and the ground valve, open on the ground below take-off thrust.
#include "systems/air/air_rules.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1), on_ground = token(60), throttle_1 = token(558), throttle_2 = token(568);
air::TimedValve ground_valve{};

constexpr f64 kGroundValveTicks = 150.0;
constexpr f32 kExcessAltitude = 10500.0f;

void update_cycle(GaugeHeader* g) {
    const bool ess = ac.elec_ess_bus == 1;
    show(g, 2, ess && ground_valve.state == 0);
    show(g, 3, ess && ground_valve.state == 1);
    show(g, 4, ess);
    show(g, 5, false);

    const bool ground = is_on(host::read(on_ground));
    const f64 t1 = host::read(throttle_1);
    const f64 t2 = host::read(throttle_2);
    const u8 target = (ground && t1 < 0.95 && t2 < 0.95 && ess) ? 1 : 0;
    air::drive(ground_valve, target, host::read(tick), kGroundValveTicks);

    ac.air_cabin_alt_excess = (ess && ac.air_cabin_alt > kExcessAltitude) ? 1 : 0;
    show(g, 1, ac.air_cabin_alt_excess == 1);
    if (ac.air_cabin_alt_excess == 1) {
        if (ac.warn_alert_cabinalt == 0)
            ac.warn_alert_cabinalt = 1;
    } else if (ac.warn_alert_cabinalt == 2) {
        ac.warn_alert_cabinalt = 0;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        update_cycle(g);
}
}  // namespace

KESTRANE_GAUGE(pressu_cabinxs, gauge("kestrane pressu_cabinxs_jm47", 271, update)
                                   .elements(image(13152, 0x4001),                // e0
                                             icon(4608, 126, 26, 0x40000003),     // e1 cabin altitude excess
                                             icon(12880, 16, 142, 0x40000003),    // e2 ground valve shut
                                             icon(12864, 16, 142, 0x40000003),    // e3 ground valve open
                                             icon(12912, 224, 142, 0x40000003),   // e4 second indicator
                                             icon(12896, 224, 142, 0x40000003)))  // e5 second indicator
