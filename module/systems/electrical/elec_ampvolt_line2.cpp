// kestrane elec_ampvolt_line2_jm47: TR line 2 ammeter (left dial) and
// voltmeter (right dial), 15 .. 35 V with a suppressed zero.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

f64 KCALL amps(Element*) {
    return clamp_back(ac.elec_line2_amps, 0, 250);
}
f64 KCALL volts(Element*) {
    return clamp_back(ac.elec_line2_volts, 0, 35);
}

NeedlePoint amps_scale[] = {{53, 127, 0, 0}, {23, 115, 50, 0}, {4, 86, 100, 0},
                            {4, 49, 150, 0}, {24, 21, 200, 0}, {53, 9, 250, 0}};
NeedlePoint volts_scale[] = {{80, 126, 0, 0},  {80, 126, 15, 0}, {116, 109, 20, 0},
                             {135, 68, 25, 0}, {117, 26, 30, 0}, {80, 8, 35, 0}};
}  // namespace

KESTRANE_GAUGE(elec_ampvolt_line2,
               gauge("kestrane elec_ampvolt_line2_jm47", 137, nullptr)
                   .elements(image(26640, 0x4001),                                         // e0
                             needle(31120, 60, 68, 4, 4, 0x4003, amps, amps_scale, 6),     // e1 amperes
                             needle(31136, 76, 68, 4, 4, 0x4003, volts, volts_scale, 6)))  // e2 volts
