// kestrane elec_amp_batstby_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(elec_amp_batstby,
    gauge("kestrane elec_amp_batstby_jm47", 137, nullptr)
        .elements(image(26400, 0x4001)))  // e0
