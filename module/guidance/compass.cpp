// kestrane compass_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(
    compass, gauge("kestrane compass_jm47", 118, nullptr).help(0xAB77).elements(image(42832, 0x4001)))  // e0
