// kestrane elec_amp_gen1_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(elec_amp_gen1,
    gauge("kestrane elec_amp_gen1_jm47", 137, nullptr)
        .elements(image(26416, 0x4001)))  // e0
