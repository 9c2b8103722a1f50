// kestrane fdtrim_jm47: flight-director pitch reference, -23..23 degrees.
#include "frame/gauge.h"
#include "guidance/fd_panel.h"

namespace {
using namespace kestrane;

void set_trim(f64 v) {
    if (v == ac.fd_pitch_trim)
        return;
    ac.fd_pitch_trim = v;
    sound::click();
}
u32 KCALL trim_down(PixPoint*, u32) {
    if (ac.fd_pitch_trim > -23.0)
        set_trim(ac.fd_pitch_trim - 1.0 < -23.0 ? -23.0 : ac.fd_pitch_trim - 1.0);
    return 0;
}
u32 KCALL trim_zero(PixPoint*, u32) {
    set_trim(0.0);
    return 0;
}
u32 KCALL trim_up(PixPoint*, u32) {
    if (ac.fd_pitch_trim < 23.0)
        set_trim(ac.fd_pitch_trim + 1.0 > 23.0 ? 23.0 : ac.fd_pitch_trim + 1.0);
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool lit = fd::knobs_lit();
    show(g, 1, lit);
    show(g, 2, !lit);
}
}  // namespace

KESTRANE_GAUGE(fdtrim, gauge("kestrane fdtrim_jm47", 90, update)
                           .elements(image(42064, 0x4001),           // e0
                                     icon(42065, 0, 0, 0x40000003),  // e1 lit
                                     icon(42066, 0, 0, 0x40000003))  // e2 unlit
                           .mouse(repeat(0, 0, 29, 37, kCursorDown, trim_down),
                                  click(29, 0, 29, 37, kCursorHand, trim_zero),
                                  repeat(58, 0, 29, 37, kCursorUp, trim_up)))
