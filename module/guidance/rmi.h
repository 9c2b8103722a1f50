// Radio magnetic indicators: a heading card under two bearing needles.
#pragma once

#include "frame/gauge.h"
#include "guidance/nav_rules.h"

namespace kestrane::rmi {

struct Rmi {
    f64 card = 0.0;  // frozen without power
    f64 needle[2] = {0.0, 0.0};
};

// The card follows the heading with the 26 V AC bus and the TADG.
inline void card_cycle(Rmi& r, ModuleVar& heading) {
    if (ac.elec_ac_26v_bus == 1 && ac.elec_tadg_on == 1)
        r.card = host::read(heading);
}

// A needle shows its bearing when powered, 0 otherwise.
inline f64 needle_value(bool powered, f64 bearing) {
    return powered ? nav::rmi_needle(bearing) : 0.0;
}

// Needles are linear: the value is the angle in degrees.
inline NeedlePoint linear[] = {{0, 0, 0.0, 0.0}, {0, 0, 360.0, 0.0}};

inline constexpr u32 kShown = 0x4003;

}  // namespace kestrane::rmi
