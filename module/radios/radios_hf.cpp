// kestrane radios_hf_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(radios_hf,
               gauge("kestrane radios_hf_jm47", 192, nullptr).elements(image(10512, 0x4001)))  // e0
