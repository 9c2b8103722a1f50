// kestrane fuel_hp_left_jm47 and fuel_hp_right_jm47: HP fuel cock levers of
// engines 1 and 2. Each opens the host's engine fuel only with the LP cock
// open too, and shuts it whenever the HP cock is.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

struct HpCock {
    u8& cock;
    u8& lp_cock;
    ModuleVar& fuel_lever;  // the host's engine fuel
    u32 open_event, cut_event;
};

ModuleVar fuel_lever_1 = token(560), fuel_lever_2 = token(570);

constexpr HpCock kEngine1{.cock = ac.fuel_hp_cock_lh,
                          .lp_cock = ac.fuel_bp_cock_lh,
                          .fuel_lever = fuel_lever_1,
                          .open_event = 65983,
                          .cut_event = 65987};
constexpr HpCock kEngine2{.cock = ac.fuel_hp_cock_rh,
                          .lp_cock = ac.fuel_bp_cock_rh,
                          .fuel_lever = fuel_lever_2,
                          .open_event = 65988,
                          .cut_event = 65992};

template <const HpCock& S>
u32 KCALL toggle(PixPoint*, u32) {
    S.cock = S.cock == 1 ? 0 : 1;
    return 0;
}

void cock_cycle(GaugeHeader* g, const HpCock& s) {
    const bool open = s.cock == 1;
    show(g, 1, open);
    show(g, 2, !open);
    const bool fuel_on = host::read(s.fuel_lever) >= 0.5;
    if (open) {
        if (!fuel_on && s.lp_cock == 1)
            host::send_event(s.open_event);
    } else if (fuel_on) {
        host::send_event(s.cut_event);
    }
}

template <const HpCock& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        cock_cycle(g, S);
}
}  // namespace

// The right lever has its own image, at the left of its gauge.
KESTRANE_GAUGE(fuel_hp_left, gauge("kestrane fuel_hp_left_jm47", 62, update<kEngine1>)
                                 .elements(image(5968, 0x4001),             // e0 background
                                           icon(5984, 29, 0, 0x40000003),   // e1 lever open
                                           icon(5984, 29, 44, 0x40000003))  // e2 lever shut
                                 .mouse(click(0, 38, 62, 38, kCursorHand, toggle<kEngine1>)))

KESTRANE_GAUGE(fuel_hp_right, gauge("kestrane fuel_hp_right_jm47", 62, update<kEngine2>)
                                  .elements(image(5968, 0x4001),            // e0 background
                                            icon(6000, 0, 0, 0x40000003),   // e1 lever open
                                            icon(6000, 0, 44, 0x40000003))  // e2 lever shut
                                  .mouse(click(0, 38, 62, 38, kCursorHand, toggle<kEngine2>)))
