// kestrane elec_amp_gen2_jm47: generator 2 ammeter.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

f64 KCALL value(Element*) {
    return clamp_back(ac.elec_gen2_amps, 0, 50);
}

NeedlePoint scale[] = {{9, 44, 0, 0},   {30, 24, 10, 0},  {54, 14, 20, 0},
                       {81, 14, 30, 0}, {107, 22, 40, 0}, {127, 44, 50, 0}};
}  // namespace

KESTRANE_GAUGE(elec_amp_gen2,
               gauge("kestrane elec_amp_gen2_jm47", 137, nullptr)
                   .elements(image(26432, 0x4001),                                        // e0 dial
                             needle(art(27, 1), 68, 64, 5, 5, 0x4003, value, scale, 6)))  // e1 needle
