// kestrane fuel_valves_lh_jm47 and fuel_valves_rh_jm47: a tank valve, two
// ganged switches and two flow indicators per side. Keeps the host's valve in
// line; the host valve stays open while the crossfeed or the other tank can
// still draw through it.
#include "frame/gauge.h"
#include "systems/engines/fuel_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::fuel;

struct ValveSide {
    u8& sw1;    // first switch
    u8& valve;  // second switch: the valve itself
    u8& other_valve;
    ModuleVar& host_valve;
    u32 host_toggle;  // event that opens or shuts the host's valve
};

ModuleVar left_host_valve = token(895);
ModuleVar right_host_valve = token(896);

constexpr ValveSide kLeft{
    .sw1 = ac.fuel_valve_sw1_lh,
    .valve = ac.fuel_valve_lh,
    .other_valve = ac.fuel_valve_rh,
    .host_valve = left_host_valve,
    .host_toggle = 66494,
};
constexpr ValveSide kRight{
    .sw1 = ac.fuel_valve_sw1_rh,
    .valve = ac.fuel_valve_rh,
    .other_valve = ac.fuel_valve_lh,
    .host_valve = right_host_valve,
    .host_toggle = 66495,
};

// Either switch moves both; each judges the move by its own position.
void set_valve(const ValveSide& s, u8 own, u8 position) {
    if (own == position)
        return;
    s.sw1 = position;
    s.valve = position;
    sound::click();
}
template <const ValveSide& S>
u32 KCALL first_open(PixPoint*, u32) {
    return set_valve(S, S.sw1, 1), 0;
}
template <const ValveSide& S>
u32 KCALL first_shut(PixPoint*, u32) {
    return set_valve(S, S.sw1, 0), 0;
}
template <const ValveSide& S>
u32 KCALL second_open(PixPoint*, u32) {
    return set_valve(S, S.valve, 1), 0;
}
template <const ValveSide& S>
u32 KCALL second_shut(PixPoint*, u32) {
    return set_valve(S, S.valve, 0), 0;
}

void valve_cycle(GaugeHeader* g, const ValveSide& s) {
    const f64 valve = host::read(s.host_valve);
    const bool open = s.valve == 1;
    show_day_night(g, 1, 9, s.sw1 != 1);
    show_day_night(g, 2, 10, s.sw1 == 1);
    show_day_night(g, 3, 11, !open);
    show_day_night(g, 4, 12, open);

    const bool ess = ac.elec_ess_bus == 1;
    if (ess) {
        const bool still_drawn = ac.fuel_crossfeed != 0 || s.other_valve != 0;
        if (open || still_drawn) {
            if (valve == 0.0)
                host::send_event(s.host_toggle);
        } else if (valve == 1.0) {
            host::send_event(s.host_toggle);
        }
    }

    const bool flow = valve == 1.0 && open;
    for (int day = 5; day <= 7; day += 2) {  // both indicators: no flow, flow
        show_day_night(g, day, day + 8, ess && !flow);
        show_day_night(g, day + 1, day + 9, ess && flow);
    }
}

template <const ValveSide& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        valve_cycle(g, S);
}
}  // namespace

// The right panel is the mirror of the left: its first switch is on the right.
KESTRANE_GAUGE(fuel_valves_lh, gauge("kestrane fuel_valves_lh_jm47", 91, update<kLeft>)
                                   .elements(image(27312, 0x4001),            // e0 background
                                             icon(1040, 16, 86, 0x40000003),  // e1 first switch shut
                                             icon(1104, 16, 70, 0x40000003),  // e2 first switch open
                                             icon(1040, 63, 86, 0x40000003),  // e3 second switch shut
                                             icon(1104, 63, 70, 0x40000003),  // e4 second switch open
                                             icon(9312, 8, 6, 0x40000003),    // e5 indicator 1 no flow
                                             icon(9264, 8, 6, 0x40000003),    // e6 indicator 1 flow
                                             icon(9312, 54, 6, 0x40000003),   // e7 indicator 2 no flow
                                             icon(9264, 54, 6, 0x40000003),   // e8 indicator 2 flow
                                             icon(9728, 16, 86, 0x40000003),  // e9 first switch shut, night
                                             icon(9584, 16, 70, 0x40000003),  // e10 first switch open, night
                                             icon(9728, 63, 86, 0x40000003),  // e11 second switch shut, night
                                             icon(9584, 63, 70, 0x40000003),  // e12 second switch open, night
                                             icon(9520, 8, 6, 0x40000003),   // e13 indicator 1 no flow, night
                                             icon(9280, 8, 6, 0x40000003),   // e14 indicator 1 flow, night
                                             icon(9520, 54, 6, 0x40000003),  // e15 indicator 2 no flow, night
                                             icon(9280, 54, 6, 0x40000003))  // e16 indicator 2 flow, night
                                   .mouse(click(0, 63, 45, 25, kCursorUp, first_open<kLeft>),
                                          click(0, 88, 45, 25, kCursorDown, first_shut<kLeft>),
                                          click(45, 63, 45, 25, kCursorUp, second_open<kLeft>),
                                          click(45, 88, 45, 25, kCursorDown, second_shut<kLeft>)))

KESTRANE_GAUGE(fuel_valves_rh, gauge("kestrane fuel_valves_rh_jm47", 91, update<kRight>)
                                   .elements(image(27328, 0x4001),            // e0 background
                                             icon(1040, 63, 86, 0x40000003),  // e1 first switch shut
                                             icon(1104, 63, 70, 0x40000003),  // e2 first switch open
                                             icon(1040, 16, 86, 0x40000003),  // e3 second switch shut
                                             icon(1104, 16, 70, 0x40000003),  // e4 second switch open
                                             icon(9312, 8, 6, 0x40000003),    // e5 indicator 1 no flow
                                             icon(9264, 8, 6, 0x40000003),    // e6 indicator 1 flow
                                             icon(9312, 54, 6, 0x40000003),   // e7 indicator 2 no flow
                                             icon(9264, 54, 6, 0x40000003),   // e8 indicator 2 flow
                                             icon(9728, 63, 86, 0x40000003),  // e9 first switch shut, night
                                             icon(9584, 63, 70, 0x40000003),  // e10 first switch open, night
                                             icon(9728, 16, 86, 0x40000003),  // e11 second switch shut, night
                                             icon(9584, 16, 70, 0x40000003),  // e12 second switch open, night
                                             icon(9520, 8, 6, 0x40000003),   // e13 indicator 1 no flow, night
                                             icon(9280, 8, 6, 0x40000003),   // e14 indicator 1 flow, night
                                             icon(9520, 54, 6, 0x40000003),  // e15 indicator 2 no flow, night
                                             icon(9280, 54, 6, 0x40000003))  // e16 indicator 2 flow, night
                                   .mouse(click(45, 63, 45, 25, kCursorUp, first_open<kRight>),
                                          click(45, 88, 45, 25, kCursorDown, first_shut<kRight>),
                                          click(0, 63, 45, 25, kCursorUp, second_open<kRight>),
                                          click(0, 88, 45, 25, kCursorDown, second_shut<kRight>)))
