// kestrane elec_amp_batstby_jm47: standby battery ammeter, charge to the left.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

f64 KCALL value(Element*) {
    return clamp_back(ac.elec_batt_stby_amps, -250, 250);
}

NeedlePoint scale[] = {{8, 51, 250, 0}, {67, 16, 0, 0}, {126, 51, -250, 0}};
}  // namespace

KESTRANE_GAUGE(elec_amp_batstby,
               gauge("kestrane elec_amp_batstby_jm47", 137, nullptr)
                   .elements(image(26400, 0x4001),                                        // e0 dial
                             needle(art(25, 1), 67, 68, 5, 5, 0x4003, value, scale, 6)))  // e1 needle
