// kestrane elec_volt_ac_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(elec_volt_ac,
    gauge("kestrane elec_volt_ac_jm47", 137, nullptr)
        .elements(image(26464, 0x4001)))  // e0
