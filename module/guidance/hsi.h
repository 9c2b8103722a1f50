// The HSI's own display values and its knob handlers, shared with the
// overview panel's mini HSI, which shows the same images and runs the same
// handlers.
#pragma once

#include "frame/drum.h"
#include "frame/gauge_abi.h"
#include "guidance/nav_rules.h"

namespace kestrane::hsi {

struct Display {
    u16 course_knob = 0;  // knob image angles, 0..360 in steps of 5
    u16 heading_knob = 0;
    Drum course_drum[3] = {{0.0, 0.0, 10}, {0.0, 0.0, 10}, {0.0, 0.0, 10}};  // hundreds, tens, units
    // selected-heading counter
    i32 counter_start = 0;
    bool counter_running = false;
    bool counter_request = false;
};

extern Display display;

// DME drum values, written by the HSI and the DME indicator alike.
extern nav::DmeDigits dme_shown;

// Knob areas (repeat while held).
u32 KCALL course_minus_1(PixPoint*, u32);
u32 KCALL course_plus_1(PixPoint*, u32);
u32 KCALL course_minus_10(PixPoint*, u32);
u32 KCALL course_plus_10(PixPoint*, u32);
u32 KCALL heading_minus_1(PixPoint*, u32);
u32 KCALL heading_plus_1(PixPoint*, u32);
u32 KCALL heading_minus_10(PixPoint*, u32);
u32 KCALL heading_plus_10(PixPoint*, u32);
// DME source: off, DME 1, DME 2.
u32 KCALL dme_select(PixPoint*, u32);

}  // namespace kestrane::hsi
