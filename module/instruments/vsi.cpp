// kestrane vsi_jm47: vertical speed indicator, feet per minute from the
// host's vertical speed (1/256 m/s), read by the ground proximity warning.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar vertical_speed = token(65);

constexpr f64 kLimit = 6000;

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        ac.adc_vs = host::read(vertical_speed) / 256.0 * 3.281 * 60.0;
}

f64 KCALL needle_value(Element*) {
    return clamp_back(ac.adc_vs, -kLimit, kLimit);
}

// Every 1000 ft/min, 0 at nine o'clock, climb upward.
NeedlePoint scale[] = {{75, 158, -6000, 0}, {57, 152, -5000, 0}, {41, 139, -4000, 0}, {27, 120, -3000, 0},
                       {20, 90, -2000, 0},  {36, 45, -1000, 0},  {90, 20, 0, 0},      {144, 45, 1000, 0},
                       {160, 90, 2000, 0},  {153, 120, 3000, 0}, {139, 139, 4000, 0}, {123, 152, 5000, 0},
                       {105, 158, 6000, 0}};
}  // namespace

KESTRANE_GAUGE(vsi,
               gauge("kestrane vsi_jm47", 181, update)
                   .elements(image(42144, 0x4001),                                               // e0 dial
                             needle(48240, 90, 90, 4, 60, 0x4003, needle_value, scale, 0, 65)))  // e1 needle
