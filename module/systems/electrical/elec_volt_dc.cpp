// kestrane elec_volt_dc_jm47: DC voltmeter, source chosen on the selector panel.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

f64 KCALL value(Element*) {
    return clamp_back(ac.elec_dc_volts, 0, 35);
}

NeedlePoint scale[] = {{9, 50, 0, 0}, {37, 23, 10, 0}, {77, 15, 20, 0}, {114, 33, 30, 0}, {127, 51, 35, 0}};
}  // namespace

KESTRANE_GAUGE(elec_volt_dc,
               gauge("kestrane elec_volt_dc_jm47", 137, nullptr)
                   .elements(image(26448, 0x4001),                                        // e0 dial
                             needle(art(28, 1), 68, 68, 5, 5, 0x4003, value, scale, 6)))  // e1 needle
