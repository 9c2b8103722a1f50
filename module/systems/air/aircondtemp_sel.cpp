// kestrane aircondtemp_sel_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(aircondtemp_sel,
               gauge("kestrane aircondtemp_sel_jm47", 215, nullptr).elements(image(13328, 0x4001)))  // e0
