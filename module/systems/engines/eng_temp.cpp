// kestrane eng_temp_left_jm47 and eng_temp_right_jm47: exhaust gas
// temperature of engines 1 and 2, main needle and hundreds needle, with the
// OFF flag when the 26 V AC bus is lost.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

struct EgtEngine {
    ModuleVar& egt;  // degrees Rankine
    f64& disp;
    f64& hundreds;  // the small needle: what is left over the hundreds
};

ModuleVar egt_1 = token(631), egt_2 = token(650);
f64 hundreds_1 = 0.0, hundreds_2 = 0.0;

constexpr EgtEngine kEngine1{.egt = egt_1, .disp = ac.eng1_egt_disp, .hundreds = hundreds_1};
constexpr EgtEngine kEngine2{.egt = egt_2, .disp = ac.eng2_egt_disp, .hundreds = hundreds_2};

template <const EgtEngine& S>
f64 KCALL main_needle(Element*) {
    return clamp_back(S.disp, 100.0, 1200.0);
}
template <const EgtEngine& S>
f64 KCALL hundreds_needle(Element*) {
    return clamp_back(S.hundreds, 0.0, 100.0);
}

template <const EgtEngine& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    egt_cycle(g, S.disp, S.hundreds, host::read(S.egt));
}
}  // namespace

KESTRANE_GAUGE(eng_temp_left,
               gauge("kestrane eng_temp_left_jm47", 110, update<kEngine1>)
                   .help(0xAB23)
                   .elements(image(20592, 0x4001),              // e0 dial
                             icon(20608, 40, 65, kHiddenIcon),  // e1 OFF flag
                             needle(20736, 54, 54, 4, 44, kNeedleFlags, main_needle<kEngine1>,
                                    egt_scale),  // e2 main
                             needle(20752, 86, 53, 2, 9, kNeedleFlags, hundreds_needle<kEngine1>,
                                    egt_hundreds_scale)))  // e3

KESTRANE_GAUGE(eng_temp_right,
               gauge("kestrane eng_temp_right_jm47", 110, update<kEngine2>)
                   .help(0xAB23)
                   .elements(image(20592, 0x4001),              // e0 dial
                             icon(20608, 40, 65, kHiddenIcon),  // e1 OFF flag
                             needle(20736, 54, 54, 4, 44, kNeedleFlags, main_needle<kEngine2>,
                                    egt_scale),  // e2 main
                             needle(20752, 86, 53, 2, 9, kNeedleFlags, hundreds_needle<kEngine2>,
                                    egt_hundreds_scale)))  // e3
