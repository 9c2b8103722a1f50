// kestrane oil_temp_left_jm47 and oil_temp_right_jm47: engine oil temperature.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

struct OilTempGauge {
    ModuleVar& oil_temp;  // degrees Rankine
    f64& disp;
};

ModuleVar oil_temp_1 = token(561), oil_temp_2 = token(571);

constexpr OilTempGauge kLeft{.oil_temp = oil_temp_1, .disp = ac.oil_temp_disp_lh};
constexpr OilTempGauge kRight{.oil_temp = oil_temp_2, .disp = ac.oil_temp_disp_rh};

template <const OilTempGauge& S>
f64 KCALL temp_needle(Element*) {
    return clamp_back(S.disp, -100.0, 200.0);
}

template <const OilTempGauge& S>
void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    oil_temp_needle(S.disp, host::read(S.oil_temp));
}
}  // namespace

KESTRANE_GAUGE(oil_temp_left, gauge("kestrane oil_temp_left_jm47", 110, update<kLeft>)
                                  .help(0xAB4F)
                                  .elements(image(21312, 0x4001),  // e0 dial
                                            needle(21328, 54, 54, 4, 44, kNeedleFlags, temp_needle<kLeft>,
                                                   oil_temp_scale)))  // e1

KESTRANE_GAUGE(oil_temp_right, gauge("kestrane oil_temp_right_jm47", 110, update<kRight>)
                                   .help(0xAB4F)
                                   .elements(image(21312, 0x4001),  // e0 dial
                                             needle(21328, 54, 54, 4, 44, kNeedleFlags, temp_needle<kRight>,
                                                    oil_temp_scale)))  // e1
