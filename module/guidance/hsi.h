// The HSI's own display values and its knob handlers, shared with the
// overview panel's mini HSI, which shows the same images and runs the same
// handlers.
#pragma once

#include "frame/drum.h"
#include "frame/gauge.h"
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

// HSI power: AC bus 1 and the TADG.
inline bool powered() {
    return ac.elec_ac_bus_1 == 1 && ac.elec_tadg_on == 1;
}

// Display values both HSIs draw alike.
inline f64 KCALL card(Element*) {
    return ac.hsi_card;
}
inline f64 KCALL course_angle(Element*) {
    return ac.hsi_course_angle;
}
inline f64 KCALL bar_offset(Element*) {
    return powered() ? ac.hsi_cdi : 0.0;
}
inline f64 KCALL bug_angle(Element*) {
    return ac.hsi_bug_angle;
}
inline f64 KCALL course_knob(Element*) {
    return display.course_knob;
}
inline f64 KCALL heading_knob(Element*) {
    return display.heading_knob;
}
inline f64 KCALL bug_hundreds(Element*) {
    return ac.hsi_hdg_bug / 100;
}
inline f64 KCALL bug_tens(Element*) {
    return ac.hsi_hdg_bug % 100 / 10;
}
inline f64 KCALL bug_units(Element*) {
    return ac.hsi_hdg_bug % 10;
}

// Needles are linear: the value is the angle in degrees.
inline NeedlePoint linear[] = {{0, 0, 0.0, 0.0}, {0, 0, 360.0, 0.0}};

// The readouts each HSI gauge draws in its own way: the full instrument rolls
// the course drums and clamps its pointer and DME digits, its small copy only
// reads them.
struct Readouts {
    ValueCallback gs_pointer;
    ValueCallback course[3];  // hundreds, tens, units
    ValueCallback dme[3];
};

inline constexpr u32 kShown = 0x4003;
inline constexpr u32 kHiddenIcon = 0x40000003;
inline constexpr i32 kCx = 175, kCy = 157;  // dial centre

// The images and knob areas of both HSI gauges.
template <class G>
constexpr auto layout(G g, Readouts r) {
    using namespace def;
    return g
        .elements(
            image(42032, 0x4001),                                                     // e0 background
            sprite(47016, 0, 0, kCx, kCy, kShown, 128, 128, nullptr, nullptr, card),  // e1 compass card
            needle(47032, kCx, kCy, 6, 100, kShown, course_angle, linear),            // e2 course pointer
            needle(47048, kCx, kCy, 6, 100, kHiddenIcon, course_angle, linear),  // e3 NAV-flagged pointer
            needle(47064, kCx, kCy, 6, 60, kHiddenIcon, course_angle, linear),   // e4 FROM arrow
            needle(47080, kCx, kCy, 6, 60, kHiddenIcon, course_angle, linear),   // e5 TO arrow
            sprite(47096, 0, 0, kCx, kCy, kShown, 4, 60, bar_offset, nullptr,
                   course_angle),                                                 // e6 deviation bar
            icon(47112, 98, 100, kHiddenIcon),                                    // e7 glide-slope scale
            moving(47128, 98, 84, kShown, nullptr, r.gs_pointer, 0, 0, -1, 11),   // e8 glide-slope pointer
            icon(47144, 98, 144, kHiddenIcon),                                    // e9 glide-slope flag
            needle(47160, kCx, kCy, 8, 110, kShown, bug_angle, linear),           // e10 heading needle
            icon(47176, 159, 141, kShown),                                        // e11 aircraft symbol
            moving(47192, 57, 26, kShown, nullptr, r.course[0], 0, 0, 0, 10),     // e12 course hundreds
            moving(47192, 75, 26, kShown, nullptr, r.course[1], 0, 0, 0, 10),     // e13 course tens
            moving(47192, 93, 26, kShown, nullptr, r.course[2], 0, 0, 0, 10),     // e14 course units
            icon(47208, 231, 24, kHiddenIcon),                                    // e15 DME 1 label
            moving(47224, 233, 26, kHiddenIcon, nullptr, r.dme[0], 0, 0, 0, 10),  // e16 DME hundreds
            moving(47224, 251, 26, kHiddenIcon, nullptr, r.dme[1], 0, 0, 0, 10),  // e17 DME tens
            moving(47224, 269, 26, kHiddenIcon, nullptr, r.dme[2], 0, 0, 0, 10),  // e18 DME units
            icon(47240, 237, 52, kHiddenIcon),                                    // e19 DME 2 label
            icon(47256, 232, 32, kHiddenIcon),                                    // e20 DME flag
            needle(47272, 52, 246, 21, 21, kShown, course_knob, linear),          // e21 course knob
            needle(47288, 298, 246, 21, 21, kShown, heading_knob, linear),        // e22 heading knob
            needle(47304, 52, 246, 21, 21, kHiddenIcon, course_knob, linear),     // e23 course knob, lit
            needle(47320, 298, 246, 21, 21, kHiddenIcon, heading_knob, linear),   // e24 heading knob, lit
            icon(47336, 234, 77, kHiddenIcon),                                    // e25 heading flag
            icon(47352, 271, 89, kHiddenIcon),                                    // e26 GPS annunciator
            moving(47368, 145, 14, kHiddenIcon, nullptr, bug_hundreds, 0, 0, 0, 10),  // e27 heading hundreds
            moving(47368, 163, 14, kHiddenIcon, nullptr, bug_tens, 0, 0, 0, 10),      // e28 heading tens
            moving(47368, 181, 14, kHiddenIcon, nullptr, bug_units, 0, 0, 0, 10))     // e29 heading units
        .mouse(repeat(9, 203, 42, 42, kCursorDown, course_minus_1),
               repeat(51, 203, 42, 42, kCursorUp, course_plus_1),
               repeat(9, 245, 42, 42, kCursorDown, course_minus_10),
               repeat(51, 245, 42, 42, kCursorUp, course_plus_10),
               repeat(256, 203, 42, 42, kCursorDown, heading_minus_1),
               repeat(298, 203, 42, 42, kCursorUp, heading_plus_1),
               repeat(256, 245, 42, 42, kCursorDown, heading_minus_10),
               repeat(298, 245, 42, 42, kCursorUp, heading_plus_10),
               click(217, 13, 85, 60, kCursorHand, dme_select));
}

}  // namespace kestrane::hsi
