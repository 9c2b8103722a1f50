// kestrane up2_vibr_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(up2_vibr, gauge("kestrane up2_vibr_jm47", 72, nullptr).elements(image(10368, 0x4001)))  // e0
