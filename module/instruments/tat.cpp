// kestrane tat_jm47: total air temperature on the essential bus, with its
// night lighting.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar tat = token(350);  // degrees C / 256

constexpr f64 kStep = 0.05;  // per cycle
constexpr f64 kSnap = 1.0;

f64 needle_value = 0.0;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 target = ac.elec_ess_bus == 1 ? host::read(tat) * 256.0 : 0.0;
    if (needle_value >= target - kSnap && needle_value <= target + kSnap)
        needle_value = target;
    else if (needle_value < target)
        needle_value += kStep;
    else if (needle_value > target)
        needle_value -= kStep;
    const bool night = ac.light_panel_night == 1;
    show(g, 2, night);
    show(g, 3, night);
}

f64 KCALL temp_needle(Element*) {
    return clamp_back(needle_value, -70.0, 50.0);
}

NeedlePoint scale[] = {{41, 139, -70, 0}, {24, 114, -60, 0}, {24, 66, -40, 0},  {55, 29, -20, 0},
                       {102, 21, 0, 0},   {144, 45, 20, 0},  {159, 102, 40, 0}, {147, 130, 50, 0}};
}  // namespace

KESTRANE_GAUGE(tat,
               gauge("kestrane tat_jm47", 181, update)
                   .elements(image(42816, 0x4001),                                           // e0 dial
                             needle(48304, 90, 90, 4, 60, 0x4003, temp_needle, scale),       // e1 needle
                             icon(48320, 0, 0, 0x40000003),                                  // e2 lit dial
                             needle(48336, 90, 90, 4, 60, 0x40004003, temp_needle, scale)))  // e3 lit needle
