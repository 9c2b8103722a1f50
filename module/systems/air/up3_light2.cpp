// kestrane up3_light2_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(up3_light2,
               gauge("kestrane up3_light2_jm47", 6, nullptr).elements(image(13392, 0x4001)))  // e0
