// kestrane up3_light3_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(up3_light3,
               gauge("kestrane up3_light3_jm47", 19, nullptr).elements(image(13408, 0x4001)))  // e0
