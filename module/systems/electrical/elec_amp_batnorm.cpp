// kestrane elec_amp_batnorm_jm47: normal battery ammeter, charge to the left.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

f64 KCALL value(Element*) {
    return clamp_back(ac.elec_batt_norm_amps, -120, 120);
}

NeedlePoint scale[] = {
    {9, 51, 120, 0}, {34, 27, 60, 0}, {67, 14, 0, 0}, {102, 27, -60, 0}, {126, 52, -120, 0}};
}  // namespace

KESTRANE_GAUGE(elec_amp_batnorm,
               gauge("kestrane elec_amp_batnorm_jm47", 137, nullptr)
                   .elements(image(26384, 0x4001),                                        // e0 dial
                             needle(art(24, 1), 67, 68, 5, 5, 0x4003, value, scale, 6)))  // e1 needle
