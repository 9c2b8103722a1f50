// kestrane elec_amp_gen2_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(elec_amp_gen2,
    gauge("kestrane elec_amp_gen2_jm47", 137, nullptr)
        .elements(image(26432, 0x4001)))  // e0
