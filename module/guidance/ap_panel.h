// The autopilot controller panel: what kestrane ap_jm47 and apseul_jm47 share
// (layout, push-button handlers, pitch-wheel animation), plus the host
// events of the autopilot.
#pragma once

#include <cstdint>

#include "frame/gauge.h"

namespace kestrane::ap {

// Host autopilot events.
inline constexpr u32 kApOff = 65791;
inline constexpr u32 kApOn = 65792;
inline constexpr u32 kPitchHoldOn = 65726;
inline constexpr u32 kVsTarget = 66036;   // ft/min, signed
inline constexpr u32 kAltTarget = 66124;  // feet
inline constexpr u32 kHdgTarget = 66042;  // degrees
inline constexpr u32 kElevator = 65694;
inline constexpr u32 kAileron = 65695;
inline constexpr u32 kRudder = 65696;
inline constexpr u32 kHdgHoldOn = 65807;
inline constexpr u32 kLateralIdle = 65809;  // no lateral hold of ours
inline constexpr u32 kNavHoldOn = 65811;
inline constexpr u32 kLocHoldOn = 65805;
inline constexpr u32 kClearHold104 = 65817;
inline constexpr u32 kClearNav1 = 65819;  // 65819 then 65813 clear token 105's hold
inline constexpr u32 kClearNav2 = 65813;
inline constexpr u32 kClearLoc = 65814;  // tokens 111 and 112
inline constexpr u32 kHdgHoldOff = 65815;
inline constexpr u32 kMasterOff = 66094;
inline constexpr u32 kYawCoordOn = 65953;
inline constexpr u32 kYawCoordOff = 65952;

// A signed number in an event's u32 value (two's complement, well defined).
constexpr u32 signed_value(i32 v) {
    return static_cast<u32>(v);
}
inline void send_signed(u32 event, i32 v) {
    host::send_event(event, signed_value(v));
}
// Whole numbers beyond i32 saturate rather than wrap.
constexpr i32 sat_i32(std::int64_t v) {
    if (v > INT32_MAX)
        return INT32_MAX;
    if (v < INT32_MIN)
        return INT32_MIN;
    return static_cast<i32>(v);
}

// Tokens read by both controllers.
inline ModuleVar t_engaged = token(103);
inline ModuleVar t_hdg_hold = token(106);
inline ModuleVar t_gps_nav = token(848);
inline ModuleVar t_alt_hold = token(108);

inline bool ready() {
    return ac.ap_ready == 1;
}

// Controller images, shared by both gauges.
enum Image : int {
    kOverlay = 1,
    kWheelRest = 2,
    kWheelUp = 3,    // rolled up (upper half, nose down)
    kWheelDown = 4,  // rolled down (lower half, nose up)
    kKnob = 5,
    kLightAp = 6,
    kLightHdg = 7,
    kLightNav = 8,
    kLightGs = 9,
    kLightAltFine = 10,
    kLightAlt = 11,
};

// Our own artwork for the controller's images.
constexpr u32 art(u32 n) {
    return 44000 + 16 * n;
}

// Pitch wheel of one controller: click requests and the 3-tick roll.
struct Wheel {
    u8 up_req, down_req, running;
    i32 end_tick;
};

// One controller: its wheel, and whether its AP button drives the host's own
// yaw coordination (by events) instead of the module's rudder coordination.
struct Panel {
    Wheel& wheel;
    bool host_yaw_coord;
};

// Each tick of a click shows the rolled wheel for 3 ticks, then the rest image.
inline void wheel_cycle(GaugeHeader* g, Wheel& w, f64 tick) {
    struct Side {
        u8& req;
        int image;
    };
    Side sides[] = {{w.down_req, kWheelDown}, {w.up_req, kWheelUp}};
    for (Side& s : sides) {
        if (w.running == 0 && s.req != 0) {
            w.end_tick = trunc_to<i32>(tick + 3);
            w.running = 1;
        }
        if (w.running != 0 && s.req != 0) {
            if (static_cast<f64>(w.end_tick) > tick) {
                show(g, s.image, true);
                show(g, kWheelRest, false);
            } else {
                show(g, s.image, false);
                show(g, kWheelRest, true);
                s.req = 0;
                w.running = 0;
            }
        }
    }
}

// Autopilot off: the wheel forgets its clicks and its roll stops; its
// images stay as they are until the next click.
inline void wheel_stop(Wheel& w) {
    w.running = 0;
    w.up_req = 0;
    w.down_req = 0;
}

inline void hide_lights(GaugeHeader* g) {
    for (int n = kLightAp; n <= kLightAlt; ++n)
        show(g, n, false);
}

// Turn-knob steps stay far from the i32 limits whatever the field holds.
inline void bank_step(i32 delta) {
    ac.ap_bank_cmd = sat_i32(std::int64_t{ac.ap_bank_cmd} + delta);
}

// ---------------------------------------------------------------- handlers

inline bool engaged_now() {
    return is_on(host::read(t_engaged));
}

template <const Panel& P, bool Up>
u32 KCALL wheel_click(PixPoint*, u32) {
    const bool engaged = engaged_now();
    (Up ? P.wheel.up_req : P.wheel.down_req) = 1;
    if (engaged && ac.ap_pitch_hold == 1 && ready()) {
        ac.ap_alt_hold_fine = 0;
        ac.ap_alt_hold = 0;
        ac.ap_alt_capture = 0;
        ac.ap_pitch_target += Up ? -0.4 : 0.4;
        ac.ap_gs_mode = 0;
    }
    return 0;
}

inline void knob_leave_modes() {
    ac.ap_hdg_mode = 0;
    ac.ap_nav_mode = 0;
    ac.ap_gs_mode = 0;
}

// Left steps need only the host autopilot; right steps also need ready.
template <bool Right>
u32 KCALL knob_step(PixPoint*, u32) {
    if (!engaged_now() || (Right && !ready()))
        return 0;
    host::send_event(kClearHold104);
    host::send_event(kHdgHoldOff);
    knob_leave_modes();
    host::send_event(kClearNav1);
    host::send_event(kClearLoc);
    bank_step(Right ? 5 : -5);
    ac.ap_turn_mode = 1;
    return 0;
}

inline u32 KCALL knob_centre(PixPoint*, u32) {
    if (!engaged_now() || !ready())
        return 0;
    host::send_event(kHdgHoldOff);
    knob_leave_modes();
    host::send_event(kClearNav1);
    host::send_event(kClearLoc);
    host::send_event(kLateralIdle);
    ac.ap_bank_cmd = 0;
    ac.ap_turn_mode = 0;
    return 0;
}

template <const Panel& P>
u32 KCALL ap_button(PixPoint*, u32) {
    const f64 host_ap = host::read(t_engaged);
    if (host_ap == 0.0 && ready()) {
        host::send_event(kApOn);
        if (P.host_yaw_coord)
            host::send_event(kYawCoordOn);
        else
            ac.ap_yaw_coord = 1;
        ac.ap_engaged_latch = 1;
    } else if (is_on(host_ap)) {
        host::send_event(kApOff);
        if (ac.ap_coord_config == 2) {
            if (P.host_yaw_coord)
                host::send_event(kYawCoordOff);
            else
                ac.ap_yaw_coord = 0;
        }
        send_signed(kHdgTarget, ac.hsi_hdg_bug);
        ac.ap_engaged_latch = 0;
        ac.ap_hdg_mode = 0;
        ac.ap_nav_mode = 0;
        ac.ap_alt_hold_fine = 0;
        ac.ap_alt_hold = 0;
        ac.ap_gs_mode = 0;
        ac.ap_turn_mode = 0;
        ac.ap_bank_cmd = 0;
        host::send_event(kClearHold104);
        host::send_event(kHdgHoldOff);
        host::send_event(kClearNav1);
        host::send_event(kClearNav2);
        host::send_event(kClearLoc);
    }
    return 0;
}

inline u32 KCALL hdg_button(PixPoint*, u32) {
    const bool engaged = engaged_now();
    host::read(t_hdg_hold);
    if (engaged && ac.ap_hdg_mode == 0 && ready() && ac.ap_turn_mode != 1) {
        ac.ap_hdg_mode = 1;
        host::send_event(kHdgHoldOn);
        host::send_event(kClearHold104);
        ac.ap_gs_mode = 0;
    } else if (engaged && ac.ap_hdg_mode == 1 && ready()) {
        ac.ap_hdg_mode = 0;
        host::send_event(kLateralIdle);
    }
    return 0;
}

inline bool ils_tuned() {
    return ac.nav1_code_loc == 1 || ac.nav1_code_gs == 1;
}

inline u32 KCALL nav_button(PixPoint*, u32) {
    const bool engaged = engaged_now();
    const f64 gps = host::read(t_gps_nav);
    if (engaged && ac.ap_nav_mode == 0 && ready() && ac.ap_turn_mode != 1) {
        if (is_on(gps)) {
            ac.ap_nav_mode = 2;
            host::send_event(kNavHoldOn);
        } else if (ils_tuned()) {
            ac.ap_nav_mode = 3;
            host::send_event(kLocHoldOn);
        } else {
            ac.ap_nav_mode = 1;
            if (ac.ap_hdg_mode != 1)
                send_signed(kHdgTarget, ac.fd_intercept_hdg);
            host::send_event(kHdgHoldOn);
        }
        host::send_event(kClearHold104);
    } else if (engaged && ac.ap_nav_mode != 0) {
        ac.ap_nav_mode = 0;
        ac.ap_gs_mode = 0;
        host::send_event(kClearNav1);
        host::send_event(kClearNav2);
        if (ac.ap_hdg_mode == 0)
            host::send_event(kHdgHoldOff);
    }
    return 0;
}

inline u32 KCALL gs_button(PixPoint*, u32) {
    const bool engaged = engaged_now();
    if (engaged && ac.ap_gs_mode == 0 && ready() && ac.ap_turn_mode != 1) {
        ac.ap_gs_mode = 1;
        host::send_event(kClearHold104);
        ac.ap_app_latch = 1;
        ac.ap_nav_mode = 3;
    } else if (engaged && ac.ap_gs_mode == 1) {
        ac.ap_gs_mode = 0;
        ac.ap_app_latch = 0;
    }
    return 0;
}

inline u32 KCALL alt_fine_button(PixPoint*, u32) {
    const bool engaged = engaged_now();
    if (engaged && ac.ap_alt_hold_fine == 0 && ready()) {
        ac.ap_alt_hold = 0;
        ac.ap_alt_hold_fine = 1;
        if (ac.fd_gs_state != 0)
            ac.ap_gs_mode = 0;
    } else if (engaged && ac.ap_alt_hold_fine == 1 && ready()) {
        ac.ap_alt_capture = 0;
        ac.ap_alt_hold_fine = 0;
    }
    return 0;
}

inline u32 KCALL alt_button(PixPoint*, u32) {
    const bool engaged = engaged_now();
    if (engaged && ac.ap_alt_hold == 0 && ready()) {
        ac.ap_alt_capture = 0;
        ac.ap_alt_hold_fine = 0;
        ac.ap_alt_hold = 1;
        if (ac.fd_gs_state != 0)
            ac.ap_gs_mode = 0;
    } else if (engaged && ac.ap_alt_hold == 1 && ready()) {
        ac.ap_alt_hold = 0;
    }
    return 0;
}

// Turn-knob needle: the command through a 13-point dial from -40 to 40.
inline NeedlePoint knob_scale[] = {{97, 33, -40, 0}, {99, 14, -25, 0}, {101, 12, -20, 0}, {103, 10, -15, 0},
                                   {105, 9, -10, 0}, {106, 8, -5, 0},  {108, 8, 0, 0},    {110, 8, 5, 0},
                                   {111, 9, 10, 0},  {113, 10, 15, 0}, {115, 12, 20, 0},  {117, 14, 25, 0},
                                   {119, 33, 40, 0}};

inline f64 KCALL knob_needle(Element*) {
    return clamp_back(ac.ap_bank_cmd, -40.0, 40.0);
}

// The controller as declared, the same on both gauges but for its
// background, callback and wheel.
template <const Panel& P>
constexpr auto controller(const char* name, GaugeCallback cb, u32 background) {
    using namespace def;
    return gauge(name, 216, cb)
        .elements(image(background, 0x4001),                                        // e0 background
                  icon(art(1), 0, 0, 0x4003),                                       // e1 overlay
                  icon(art(2), 174, 18, 0x4003),                                    // e2 wheel at rest
                  icon(art(3), 174, 14, 0x40000003),                                // e3 wheel rolled up
                  icon(art(4), 174, 33, 0x40000003),                                // e4 wheel rolled down
                  needle(art(5), 108, 23, 2, 12, 0x4003, knob_needle, knob_scale),  // e5 turn knob
                  icon(art(6), 27, 18, 0x40000003),                                 // e6 AP light
                  icon(art(7), 27, 48, 0x40000003),                                 // e7 HDG light
                  icon(art(8), 56, 78, 0x40000003),                                 // e8 NAV light
                  icon(art(9), 85, 78, 0x40000003),                                 // e9 G/S light
                  icon(art(10), 147, 78, 0x40000003),                               // e10 ALT fine light
                  icon(art(11), 178, 78, 0x40000003))                               // e11 ALT light
        .mouse(click(162, 12, 32, 24, kCursorDown, wheel_click<P, true>),  // wheel upper half: nose down
               click(162, 37, 32, 27, kCursorUp, wheel_click<P, false>),   // wheel lower half: nose up
               click(60, 0, 34, 46, kCursorDown, knob_step<false>),        // knob left
               click(94, 0, 28, 46, kCursorHand, knob_centre),             // knob centre
               click(122, 0, 34, 46, kCursorUp, knob_step<true>),          // knob right
               click(27, 18, 18, 14, kCursorHand, ap_button<P>),
               click(27, 48, 18, 14, kCursorHand, hdg_button), click(56, 78, 18, 14, kCursorHand, nav_button),
               click(85, 78, 18, 14, kCursorHand, gs_button),
               click(147, 78, 18, 14, kCursorHand, alt_fine_button),
               click(178, 78, 18, 14, kCursorHand, alt_button));
}

}  // namespace kestrane::ap
