// Panel-window toggles: small invisible gauges that open and close the other
// panel windows. Each shows one image while the pilot asks to see the click
// areas (`panel_click_areas`), so that he can find them.
#pragma once

#include "frame/gauge.h"

namespace kestrane {

// Key events taking a panel-window ident as value.
inline constexpr u32 kEventWindowToggle = 66506;
inline constexpr u32 kEventWindowOpen = 66507;
inline constexpr u32 kEventWindowClose = 66508;

// Window idents of the aircraft's panel configuration.
namespace window {
inline constexpr u32 kGear = 10030;
inline constexpr u32 kClock = 10040;
inline constexpr u32 kAutopilot = 10045;
inline constexpr u32 kPedestal = 10050;
inline constexpr u32 kRadios2 = 10055;
inline constexpr u32 kUpper2 = 10060;
inline constexpr u32 kUpper3 = 10070;
inline constexpr u32 kGps = 10080;
inline constexpr u32 kTadg = 10090;
inline constexpr u32 kElectrical = 10100;
inline constexpr u32 kHydraulic = 10110;
inline constexpr u32 kServos = 10120;
inline constexpr u32 kFailures = 10140;
inline constexpr u32 kBattery = 10150;
inline constexpr u32 kFuel = 10160;
inline constexpr u32 kOverview = 10510;
inline constexpr u32 kPanelLoad = 10520;
}  // namespace window

// Shows image eN of a toggle while the click areas are asked for.
inline void show_click_area(GaugeHeader* g, int n) {
    show(g, n, ac.panel_click_areas == 1);
}

// Callback of a toggle whose only behaviour is its click-area image.
template <int N>
void KCALL click_area_update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        show_click_area(g, N);
}

// Handler toggling one window through the host's service; returns its result.
template <u32 Ident>
u32 KCALL toggle_window(PixPoint*, u32) {
    return host::window_toggle(Ident);
}

// Handler sending one window event per ident, in order.
template <u32 Event, u32... Idents>
u32 KCALL window_events(PixPoint*, u32) {
    (host::send_event(Event, Idents), ...);
    return 0;
}

// The one box of a toggle: hand cursor, left click.
constexpr def::AreaDecl toggle_box(i32 x, i32 y, i32 w, i32 h, MouseHandler fn) {
    return def::click(x, y, w, h, kCursorHand, fn);
}

}  // namespace kestrane
