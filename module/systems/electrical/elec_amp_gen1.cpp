// kestrane elec_amp_gen1_jm47: generator 1 ammeter.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

f64 KCALL value(Element*) {
    return clamp_back(ac.elec_gen1_amps, 0, 50);
}

NeedlePoint scale[] = {{9, 44, 0, 0},   {30, 24, 10, 0},  {54, 14, 20, 0},
                       {81, 14, 30, 0}, {107, 22, 40, 0}, {127, 44, 50, 0}};
}  // namespace

KESTRANE_GAUGE(elec_amp_gen1,
               gauge("kestrane elec_amp_gen1_jm47", 137, nullptr)
                   .elements(image(26416, 0x4001),                                        // e0 dial
                             needle(art(26, 1), 68, 64, 5, 5, 0x4003, value, scale, 6)))  // e1 needle
