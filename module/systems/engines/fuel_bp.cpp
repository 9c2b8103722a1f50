// kestrane fuel_bp_left_jm47 and fuel_bp_right_jm47: LP fuel cock levers of
// engines 1 and 2. Shutting one cuts the host's engine fuel; opening it is
// left to the HP cock.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

struct LpCock {
    u8& cock;
    ModuleVar& fuel_lever;  // the host's engine fuel
    u32 cut_event;          // shuts the host's engine fuel
};

ModuleVar fuel_lever_1 = token(560), fuel_lever_2 = token(570);

constexpr LpCock kEngine1{.cock = ac.fuel_bp_cock_lh, .fuel_lever = fuel_lever_1, .cut_event = 65987};
constexpr LpCock kEngine2{.cock = ac.fuel_bp_cock_rh, .fuel_lever = fuel_lever_2, .cut_event = 65992};

template <const LpCock& S>
u32 KCALL open_cock(PixPoint*, u32) {
    S.cock = 1;
    return 0;
}
template <const LpCock& S>
u32 KCALL shut_cock(PixPoint*, u32) {
    S.cock = 0;
    return 0;
}

void cock_cycle(GaugeHeader* g, const LpCock& s) {
    // one lever: the open lever is the gauge's background
    const bool is_open = s.cock == 1;
    show(g, 0, is_open);
    show(g, 1, !is_open);
    if (!is_open && host::read(s.fuel_lever) >= 0.5)
        host::send_event(s.cut_event);
}

template <const LpCock& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        cock_cycle(g, S);
}
}  // namespace

KESTRANE_GAUGE(fuel_bp_left, gauge("kestrane fuel_bp_left_jm47", 35, update<kEngine1>)
                                 .elements(image(8224, 0x4001),             // e0 lever open
                                           icon(8240, 0, 225, 0x40000003))  // e1 lever shut
                                 .mouse(click(0, 0, 35, 47, kCursorHand, open_cock<kEngine1>),
                                        click(0, 225, 35, 47, kCursorHand, shut_cock<kEngine1>)))

KESTRANE_GAUGE(fuel_bp_right, gauge("kestrane fuel_bp_right_jm47", 35, update<kEngine2>)
                                  .elements(image(8256, 0x4001),             // e0 lever open
                                            icon(8272, 0, 225, 0x40000003))  // e1 lever shut
                                  .mouse(click(0, 0, 35, 47, kCursorHand, open_cock<kEngine2>),
                                         click(0, 225, 35, 47, kCursorHand, shut_cock<kEngine2>)))
