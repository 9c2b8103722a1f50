// kestrane elec_ampvolt_line1_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(elec_ampvolt_line1,
    gauge("kestrane elec_ampvolt_line1_jm47", 137, nullptr)
        .elements(image(26624, 0x4001)))  // e0
