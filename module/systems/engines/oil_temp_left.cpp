// kestrane oil_temp_left_jm47: left engine oil temperature.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

ModuleVar oil_temp = token(561);  // degrees Rankine

f64 KCALL temp_needle(Element*) {
    return clamp_back(ac.oil_temp_disp_lh, -100.0, 200.0);
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    oil_temp_needle(ac.oil_temp_disp_lh, host::read(oil_temp));
}
}  // namespace

KESTRANE_GAUGE(oil_temp_left,
               gauge("kestrane oil_temp_left_jm47", 110, update)
                   .help(0xAB4F)
                   .elements(image(21312, 0x4001),  // e0 dial
                             needle(21328, 54, 54, 4, 44, kNeedleFlags, temp_needle, oil_temp_scale)))  // e1
