// kestrane fffu_2: engine 2 fuel flow needle and fuel-used counter (five drums).
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

ModuleVar flow = token(657);      // pounds per hour
ModuleVar sim_time = token(607);  // seconds
FuelCounter counter{};

// reads the needle's own source variable, the engine's fuel flow
f64 KCALL flow_value(Element* e) {
    return flow_needle(ac.fuel_flow_disp_2, host::read(e->u.needle.source));
}
f64 KCALL units_drum(Element*) {
    return counter.drum[0];
}
f64 KCALL tens_drum(Element*) {
    return counter.drum[1];
}
f64 KCALL hundreds_drum(Element*) {
    return counter.drum[2];
}
f64 KCALL thousands_drum(Element*) {
    return counter.drum[3];
}
f64 KCALL ten_thousands_drum(Element*) {
    return counter.drum[4];
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    fuel_used_cycle(counter, ac.fuel_used_2, ac.fuel_used_reset_2, host::read(sim_time), flow);
    counter_drums(ac.fuel_used_2, counter.drum);
    // this gauge takes back its own reset request; engine 1's button does that itself
    ac.fuel_used_reset_2 = 0;
}
}  // namespace

KESTRANE_GAUGE(
    fffu_2,
    gauge("kestrane fffu_2", 241, update)
        .help(0xAB28)
        .elements(image(20992, 0x4001),                                                        // e0 dial
                  moving(21008, 175, 96, kDrumFlags, drum_x, units_drum, 0, 1, 0, 10),         // e1 units
                  moving(21008, 139, 96, kDrumFlags, drum_x, tens_drum, 0, 1, 0, 10),          // e2 tens
                  moving(21008, 103, 96, kDrumFlags, drum_x, hundreds_drum, 0, 1, 0, 10),      // e3 hundreds
                  moving(21008, 67, 96, kDrumFlags, drum_x, thousands_drum, 0, 1, 0, 10),      // e4 thousands
                  moving(21008, 31, 96, kDrumFlags, drum_x, ten_thousands_drum, 0, 1, 0, 10),  // e5
                  needle(21024, 121, 119, 4, 60, kNeedleFlags, flow_value, flow_scale, 0, 657)))  // e6 flow
