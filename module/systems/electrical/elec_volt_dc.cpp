// kestrane elec_volt_dc_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(elec_volt_dc,
    gauge("kestrane elec_volt_dc_jm47", 137, nullptr)
        .elements(image(26448, 0x4001)))  // e0
