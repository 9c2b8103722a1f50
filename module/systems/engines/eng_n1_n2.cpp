// kestrane eng_n1_left_jm47, eng_n1_right_jm47, eng_n2_left_jm47 and
// eng_n2_right_jm47: N1 and N2 of engines 1 and 2, main needle and units
// needle, driven by the engine values another module of the aircraft
// publishes.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

struct SpoolGauge {
    Spool& spool;
    f64& disp;
    const char* named;  // the engine value
};

Spool n1_1{}, n1_2{}, n2_1{}, n2_2{};

constexpr SpoolGauge kN1Left{.spool = n1_1, .disp = ac.eng1_n1_disp, .named = "Turbine_N1_1"};
constexpr SpoolGauge kN1Right{.spool = n1_2, .disp = ac.eng2_n1_disp, .named = "Turbine_N1_2"};
constexpr SpoolGauge kN2Left{.spool = n2_1, .disp = ac.eng1_n2_disp, .named = "Turbine_N2_1"};
constexpr SpoolGauge kN2Right{.spool = n2_2, .disp = ac.eng2_n2_disp, .named = "Turbine_N2_2"};

template <const SpoolGauge& S>
f64 KCALL main_needle(Element*) {
    return clamp_back(S.disp, 0.0, 110.0);
}
template <const SpoolGauge& S>
f64 KCALL units_needle(Element*) {
    return clamp_back(S.spool.units, 0.0, 10.0);
}

template <const SpoolGauge& S>
void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    spool_cycle(S.spool, S.disp, S.named);
}
}  // namespace

KESTRANE_GAUGE(eng_n1_left, gauge("kestrane eng_n1_left_jm47", 110, update<kN1Left>)
                                .help(0xAB21)
                                .elements(image(20768, 0x4001),  // e0 dial
                                          needle(20736, 54, 54, 4, 44, kNeedleFlags, main_needle<kN1Left>,
                                                 spool_scale),  // e1 main
                                          needle(20784, 35, 31, 2, 9, kNeedleFlags, units_needle<kN1Left>,
                                                 spool_units_scale)))  // e2 units

KESTRANE_GAUGE(eng_n1_right, gauge("kestrane eng_n1_right_jm47", 110, update<kN1Right>)
                                 .help(0xAB21)
                                 .elements(image(20768, 0x4001),  // e0 dial
                                           needle(20736, 54, 54, 4, 44, kNeedleFlags, main_needle<kN1Right>,
                                                  spool_scale),  // e1 main
                                           needle(20784, 35, 31, 2, 9, kNeedleFlags, units_needle<kN1Right>,
                                                  spool_units_scale)))  // e2 units

KESTRANE_GAUGE(eng_n2_left, gauge("kestrane eng_n2_left_jm47", 110, update<kN2Left>)
                                .help(0xAB22)
                                .elements(image(20768, 0x4001),  // e0 dial
                                          needle(20736, 54, 54, 4, 44, kNeedleFlags, main_needle<kN2Left>,
                                                 spool_scale),  // e1 main
                                          needle(20784, 35, 31, 2, 9, kNeedleFlags, units_needle<kN2Left>,
                                                 spool_units_scale)))  // e2 units

KESTRANE_GAUGE(eng_n2_right, gauge("kestrane eng_n2_right_jm47", 110, update<kN2Right>)
                                 .help(0xAB22)
                                 .elements(image(20768, 0x4001),  // e0 dial
                                           needle(20736, 54, 54, 4, 44, kNeedleFlags, main_needle<kN2Right>,
                                                  spool_scale),  // e1 main
                                           needle(20784, 35, 31, 2, 9, kNeedleFlags, units_needle<kN2Right>,
                                                  spool_units_scale)))  // e2 units
