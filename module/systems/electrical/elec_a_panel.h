// Small pieces shared by the battery, ground power and meter panels.
#pragma once

#include "frame/gauge.h"

namespace kestrane::elec_a {

// Bitmap of image n of the gauge at registry position `gauge` (our own artwork).
constexpr u32 art(u32 gauge, u32 n) {
    return 26000 + 16 * (gauge * 8 + n);
}

// Voltmeter selector knobs: one step per click within 0 .. 5, no sound.
inline void knob_down(u8& sel) {
    if (sel > 0)
        --sel;
}
inline void knob_up(u8& sel) {
    if (sel < 5)
        ++sel;
}

// Alternator LH and RH each on line with its line switch closed.
inline bool alt_lh_on_line() {
    return ac.elec_alt_lh_online == 1 && ac.elec_alt_lh_line_sw == 1;
}
inline bool alt_rh_on_line() {
    return ac.elec_alt_rh_online == 1 && ac.elec_alt_rh_line_sw == 1;
}

}  // namespace kestrane::elec_a
