// kestrane up3_light1_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(up3_light1,
               gauge("kestrane up3_light1_jm47", 93, nullptr).elements(image(13376, 0x4001)))  // e0
