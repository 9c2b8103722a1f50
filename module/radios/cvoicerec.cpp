// kestrane cvoicerec_jm47: background only so far.
#include "frame/gauge_def.h"

KESTRANE_GAUGE(cvoicerec,
               gauge("kestrane cvoicerec_jm47", 170, nullptr).elements(image(13664, 0x4001)))  // e0
