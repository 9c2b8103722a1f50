// kestrane elec_volt_ac_jm47: AC voltmeter, bus chosen on the selector panel.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

f64 KCALL value(Element*) {
    return clamp_back(ac.elec_ac_volts, 0, 130);
}

NeedlePoint scale[] = {{8, 50, 0, 0}, {43, 17, 50, 0}, {98, 20, 100, 0}, {126, 42, 130, 0}};
}  // namespace

KESTRANE_GAUGE(elec_volt_ac,
               gauge("kestrane elec_volt_ac_jm47", 137, nullptr)
                   .elements(image(26464, 0x4001),                                        // e0 dial
                             needle(art(29, 1), 67, 66, 5, 5, 0x4003, value, scale, 6)))  // e1 needle
