// Pieces shared by the alternator, TR and bus-diagram panels: the alternator
// line paths, the alternator rule, guarded switch images and fault lights.
#pragma once

#include "frame/gauge.h"

namespace kestrane::elec_b {

// An alternator feeds its AC line when it is on line with its line switch closed.
inline bool lh_on_line() {
    return ac.elec_alt_lh_online == 1 && ac.elec_alt_lh_line_sw == 1;
}
inline bool rh_on_line() {
    return ac.elec_alt_rh_online == 1 && ac.elec_alt_rh_line_sw == 1;
}

// An alternator comes on line with its engine above 20 % N2, no host electrical
// failure (279 read as a whole number), no DC ground power in use, its HP fuel
// cock open and its switch on. The line switch does not matter here.
inline u8 alternator_online(f64 n2, f64 host_failure, u8 hp_cock, u8 sw) {
    return n2 > 20.0 && trunc_to<i32>(host_failure) != 1 && ac.elec_dc_gndpwr_on == 0 && hp_cock == 1 &&
           sw == 1;
}

// Guarded switch images: on under a closed guard is one image; otherwise the
// open guard with the switch on or off.
inline void show_guarded(GaugeHeader* g, int covered, int guard_open, int on, int off, u8 guard, u8 sw) {
    const bool sw_on = sw == 1;
    const bool closed_over_on = sw_on && guard == 0;
    show(g, covered, closed_over_on);
    show(g, guard_open, !closed_over_on);
    show(g, on, sw_on && !closed_over_on);
    show(g, off, !sw_on);
}

// Fault lights with test latches. A switch that is off drops the latch of
// its light and clears the warning panel's fault flag, every cycle; a lit
// light (essential bus, and test or failure) raises the flag. A panel clears
// for all its switches before lighting, so a light still lit keeps the flag.
inline void fault_clear(u8& latch, u8 sw) {
    if (sw != 0)
        return;
    latch = 0;
    ac.elec_fault_light = 0;
}
inline void fault_light(GaugeHeader* g, int n, u8 latch, bool failed) {
    const bool lit = ac.elec_ess_bus == 1 && (latch != 0 || failed);
    show(g, n, lit);
    if (lit)
        ac.elec_fault_light = 1;
}

}  // namespace kestrane::elec_b
