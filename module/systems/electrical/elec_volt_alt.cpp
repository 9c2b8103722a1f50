// kestrane elec_volt_alt_jm47: alternator voltmeter, 80 .. 145 V with a
// suppressed zero.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

f64 KCALL volts(Element*) {
    return clamp_back(ac.elec_alt_volts, 0, 145);
}

NeedlePoint volts_scale[] = {{14, 53, 0, 0},   {14, 53, 80, 0},   {48, 26, 100, 0},
                             {87, 25, 120, 0}, {114, 42, 140, 0}, {121, 54, 145, 0}};
}  // namespace

KESTRANE_GAUGE(elec_volt_alt,
               gauge("kestrane elec_volt_alt_jm47", 137, nullptr)
                   .elements(image(26608, 0x4001),                                         // e0
                             needle(30864, 68, 72, 4, 4, 0x4003, volts, volts_scale, 6)))  // e1 volts
