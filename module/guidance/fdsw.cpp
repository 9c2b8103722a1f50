// kestrane fdsw_jm47: flight-director mode selector, positions 0 (off),
// 1 (NAV, reversed roll sense), 2 (HDG), 3 (NAV), 4 (APP).
#include "frame/gauge.h"
#include "guidance/fd_panel.h"

namespace {
using namespace kestrane;

template <u8 Position>
u32 KCALL select(PixPoint*, u32) {
    set_switch(ac.fd_mode_sel, Position);
    return 0;
}
u32 KCALL step_down(PixPoint*, u32) {
    if (ac.fd_mode_sel > 0)
        set_switch(ac.fd_mode_sel, static_cast<u8>(ac.fd_mode_sel - 1));
    return 0;
}
u32 KCALL step_up(PixPoint*, u32) {
    if (ac.fd_mode_sel < 4)
        set_switch(ac.fd_mode_sel, static_cast<u8>(ac.fd_mode_sel + 1));
    return 0;
}

constexpr int kLitKnob = 1;    // e1..e5: lit knob, positions 0..4
constexpr int kUnlitKnob = 6;  // e6..e10: unlit knob, positions 0..4
constexpr int kLitOverlay = 11;
constexpr int kUnlitOverlay = 12;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool lit = fd::knobs_lit();
    for (int p = 0; p < 5; ++p) {
        show(g, kLitKnob + p, lit && ac.fd_mode_sel == p);
        show(g, kUnlitKnob + p, !lit && ac.fd_mode_sel == p);
    }
    show(g, kLitOverlay, lit);
    show(g, kUnlitOverlay, !lit);
}
}  // namespace

KESTRANE_GAUGE(fdsw, gauge("kestrane fdsw_jm47", 90, update)
                         .elements(image(42048, 0x4001),             // e0
                                   icon(42049, 25, 23, 0x40000003),  // e1 lit, off
                                   icon(42050, 25, 23, 0x40000003),  // e2 lit, NAV reversed
                                   icon(42051, 25, 23, 0x40000003),  // e3 lit, HDG
                                   icon(42052, 25, 23, 0x40000003),  // e4 lit, NAV
                                   icon(42053, 16, 23, 0x40000003),  // e5 lit, APP
                                   icon(42054, 25, 23, 0x40000003),  // e6 unlit, off
                                   icon(42055, 25, 23, 0x40000003),  // e7 unlit, NAV reversed
                                   icon(42056, 25, 23, 0x40000003),  // e8 unlit, HDG
                                   icon(42057, 25, 23, 0x40000003),  // e9 unlit, NAV
                                   icon(42058, 16, 23, 0x40000003),  // e10 unlit, APP
                                   icon(42059, 0, 0, 0x40000003),    // e11 lit overlay
                                   icon(42060, 0, 0, 0x40000003))    // e12 unlit overlay
                         .mouse(click(0, 37, 25, 22, kCursorHand, select<0>),
                                click(0, 17, 27, 19, kCursorHand, select<1>),
                                click(15, 0, 28, 18, kCursorHand, select<2>),
                                click(43, 0, 26, 18, kCursorHand, select<3>),
                                click(69, 8, 21, 23, kCursorHand, select<4>),
                                click(0, 60, 35, 30, kCursorDown, step_down),
                                click(60, 32, 30, 36, kCursorUp, step_up)))
