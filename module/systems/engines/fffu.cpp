// kestrane fffu_1 and fffu_2: fuel flow needle and fuel-used counter (five
// drums) of engines 1 and 2.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

struct FlowEngine {
    ModuleVar& flow;      // pounds per hour
    ModuleVar& sim_time;  // seconds
    FuelCounter& counter;
    f64& flow_disp;
    f64& used;
    u8& reset;
    // Engine 2's gauge takes back its own reset request; engine 1's button
    // does that itself.
    bool takes_back_reset;
};

ModuleVar flow_1 = token(638), sim_time_1 = token(607);
ModuleVar flow_2 = token(657), sim_time_2 = token(607);
FuelCounter counter_1{}, counter_2{};

constexpr FlowEngine kEngine1{
    .flow = flow_1,
    .sim_time = sim_time_1,
    .counter = counter_1,
    .flow_disp = ac.fuel_flow_disp_1,
    .used = ac.fuel_used_1,
    .reset = ac.fuel_used_reset_1,
    .takes_back_reset = false,
};
constexpr FlowEngine kEngine2{
    .flow = flow_2,
    .sim_time = sim_time_2,
    .counter = counter_2,
    .flow_disp = ac.fuel_flow_disp_2,
    .used = ac.fuel_used_2,
    .reset = ac.fuel_used_reset_2,
    .takes_back_reset = true,
};

// reads the needle's own source variable, the engine's fuel flow
template <const FlowEngine& S>
f64 KCALL flow_value(Element* e) {
    return flow_needle(S.flow_disp, host::read(e->u.needle.source));
}
// drum 0 units .. 4 ten-thousands
template <const FlowEngine& S, int N>
f64 KCALL drum(Element*) {
    return S.counter.drum[N];
}

template <const FlowEngine& S>
void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    fuel_used_cycle(S.counter, S.used, S.reset, host::read(S.sim_time), S.flow);
    counter_drums(S.used, S.counter.drum);
    if (S.takes_back_reset)
        S.reset = 0;
}
}  // namespace

KESTRANE_GAUGE(
    fffu_1,
    gauge("kestrane fffu_1", 241, update<kEngine1>)
        .help(0xAB28)
        .elements(image(20992, 0x4001),                                                        // e0 dial
                  moving(21008, 175, 96, kDrumFlags, drum_x, drum<kEngine1, 0>, 0, 1, 0, 10),  // e1 units
                  moving(21008, 139, 96, kDrumFlags, drum_x, drum<kEngine1, 1>, 0, 1, 0, 10),  // e2 tens
                  moving(21008, 103, 96, kDrumFlags, drum_x, drum<kEngine1, 2>, 0, 1, 0, 10),  // e3 hundreds
                  moving(21008, 67, 96, kDrumFlags, drum_x, drum<kEngine1, 3>, 0, 1, 0, 10),   // e4 thousands
                  moving(21008, 31, 96, kDrumFlags, drum_x, drum<kEngine1, 4>, 0, 1, 0, 10),   // e5
                  needle(21024, 121, 119, 4, 60, kNeedleFlags, flow_value<kEngine1>, flow_scale, 0,
                         638)))  // e6 flow

KESTRANE_GAUGE(
    fffu_2,
    gauge("kestrane fffu_2", 241, update<kEngine2>)
        .help(0xAB28)
        .elements(image(20992, 0x4001),                                                        // e0 dial
                  moving(21008, 175, 96, kDrumFlags, drum_x, drum<kEngine2, 0>, 0, 1, 0, 10),  // e1 units
                  moving(21008, 139, 96, kDrumFlags, drum_x, drum<kEngine2, 1>, 0, 1, 0, 10),  // e2 tens
                  moving(21008, 103, 96, kDrumFlags, drum_x, drum<kEngine2, 2>, 0, 1, 0, 10),  // e3 hundreds
                  moving(21008, 67, 96, kDrumFlags, drum_x, drum<kEngine2, 3>, 0, 1, 0, 10),   // e4 thousands
                  moving(21008, 31, 96, kDrumFlags, drum_x, drum<kEngine2, 4>, 0, 1, 0, 10),   // e5
                  needle(21024, 121, 119, 4, 60, kNeedleFlags, flow_value<kEngine2>, flow_scale, 0,
                         657)))  // e6 flow
