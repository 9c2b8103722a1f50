// kestrane fuel_pumps_lh_jm47 and fuel_pumps_rh_jm47: the booster pumps A to
// D of each side. Each panel runs its pumps and keeps its engine's selector on
// the feed its side can give (or on the other side's through the crossfeed).
// The left panel also copies the host's fuel selectors of both engines.
#include "frame/gauge.h"
#include "systems/engines/fuel_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::fuel;

struct PumpPanel {
    const PumpSide& pumps;
    const PumpSide& other_pumps;
    u8& valve;
    u8& other_valve;
    u8& feed;        // this engine's selector, as copied
    u8& other_feed;  // the other engine's
    int engine;
    ModuleVar& altitude;
    ModuleVar& n2;
    f64 suction_ceiling;  // ft: above it the engine cannot draw its fuel
    u8 boosted, drawn;    // feed values of this side
    // Through the crossfeed: the other side's feed values taken over, and
    // whether a pump of the other side must be pushing fuel across.
    u8 cross_boosted, cross_drawn;
    bool cross_needs_pump;
    bool copies_selectors;
};

ModuleVar selector_1 = token(307), selector_2 = token(906);
ModuleVar left_altitude = token(74), left_n2 = token(625);
ModuleVar right_altitude = token(74), right_n2 = token(644);

constexpr PumpPanel kLeft{
    .pumps = kLeftPumps,
    .other_pumps = kRightPumps,
    .valve = ac.fuel_valve_lh,
    .other_valve = ac.fuel_valve_rh,
    .feed = ac.fuel_feed_eng1,
    .other_feed = ac.fuel_feed_eng2,
    .engine = 1,
    .altitude = left_altitude,
    .n2 = left_n2,
    .suction_ceiling = 31000.0,
    .boosted = 2,
    .drawn = 4,
    .cross_boosted = 3,
    .cross_drawn = 5,
    .cross_needs_pump = false,
    .copies_selectors = true,
};
// Engine 2 draws on the left side only with a left pump running, and its
// suction ceiling is 250 ft lower.
constexpr PumpPanel kRight{
    .pumps = kRightPumps,
    .other_pumps = kLeftPumps,
    .valve = ac.fuel_valve_rh,
    .other_valve = ac.fuel_valve_lh,
    .feed = ac.fuel_feed_eng2,
    .other_feed = ac.fuel_feed_eng1,
    .engine = 2,
    .altitude = right_altitude,
    .n2 = right_n2,
    .suction_ceiling = 30750.0,
    .boosted = 3,
    .drawn = 5,
    .cross_boosted = 2,
    .cross_drawn = 4,
    .cross_needs_pump = true,
    .copies_selectors = false,
};

inline constexpr int kA = 0, kB = 1, kC = 2, kD = 3;

template <const PumpPanel& S, int Pump, u8 Position>
u32 KCALL pump_sw(PixPoint*, u32) {
    return set_switch(*S.pumps.sw[Pump], Position), 0;
}

// The engine's feed: through the crossfeed it takes what the other side gives
// the other engine; otherwise its own side.
u8 engine_feed(const PumpPanel& s) {
    const f64 alt = host::read(s.altitude);
    const f64 n2_pct = host::read(s.n2);
    const bool suction = alt < s.suction_ceiling && n2_pct >= 20.0;
    const bool valve_open = s.valve == 1;
    if (ac.fuel_crossfeed == 1 && ac.elec_ess_bus == 1 && (!valve_open || (!any_pump(s.pumps) && !suction))) {
        if (s.other_valve == 1 && (!s.cross_needs_pump || any_pump(s.other_pumps)) &&
            (s.other_feed == s.cross_boosted || s.other_feed == s.cross_drawn))
            return s.other_feed;
        return 0;
    }
    return own_side_feed(valve_open, s.pumps, suction, s.boosted, s.drawn);
}

void pumps_cycle(GaugeHeader* g, const PumpPanel& s) {
    run_pumps(s.pumps);
    if (s.copies_selectors) {
        ac.fuel_feed_eng1 = selector_copy(host::read(selector_1));
        ac.fuel_feed_eng2 = selector_copy(host::read(selector_2));
    }
    keep_selector(s.engine, engine_feed(s), s.feed);
    show_pump_switches(g, s.pumps);
}

template <const PumpPanel& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        pumps_cycle(g, S);
}
}  // namespace

// The right panel is the mirror of the left: A and B on the right, C and D on the left.
KESTRANE_GAUGE(fuel_pumps_lh, gauge("kestrane fuel_pumps_lh_jm47", 100, update<kLeft>)
                                  .elements(image(27280, 0x4001),             // e0 background
                                            icon(1040, 20, 43, 0x40000003),   // e1 A auto
                                            icon(1024, 20, 38, 0x40000003),   // e2 A off
                                            icon(1104, 21, 27, 0x40000003),   // e3 A on
                                            icon(1040, 20, 117, 0x40000003),  // e4 B auto
                                            icon(1024, 20, 112, 0x40000003),  // e5 B off
                                            icon(1104, 20, 101, 0x40000003),  // e6 B on
                                            icon(9536, 68, 43, 0x40000003),   // e7 C off
                                            icon(9552, 69, 27, 0x40000003),   // e8 C on
                                            icon(9536, 68, 117, 0x40000003),  // e9 D off
                                            icon(9552, 69, 101, 0x40000003),  // e10 D on
                                            icon(9728, 20, 43, 0x40000003),   // e11 A auto, night
                                            icon(9600, 20, 38, 0x40000003),   // e12 A off, night
                                            icon(9584, 21, 27, 0x40000003),   // e13 A on, night
                                            icon(9728, 20, 117, 0x40000003),  // e14 B auto, night
                                            icon(9600, 20, 112, 0x40000003),  // e15 B off, night
                                            icon(9584, 20, 101, 0x40000003),  // e16 B on, night
                                            icon(9760, 68, 43, 0x40000003),   // e17 C off, night
                                            icon(9744, 69, 27, 0x40000003),   // e18 C on, night
                                            icon(9760, 68, 117, 0x40000003),  // e19 D off, night
                                            icon(9744, 69, 101, 0x40000003))  // e20 D on, night
                                  .mouse(click(4, 20, 45, 17, kCursorUp, pump_sw<kLeft, kA, kPumpOn>),
                                         click(4, 37, 45, 17, kCursorHand, pump_sw<kLeft, kA, kPumpOff>),
                                         click(4, 54, 45, 17, kCursorDown, pump_sw<kLeft, kA, kPumpAuto>),
                                         click(4, 96, 45, 17, kCursorUp, pump_sw<kLeft, kB, kPumpOn>),
                                         click(4, 113, 45, 17, kCursorHand, pump_sw<kLeft, kB, kPumpOff>),
                                         click(4, 130, 45, 17, kCursorDown, pump_sw<kLeft, kB, kPumpAuto>),
                                         click(53, 20, 45, 25, kCursorUp, pump_sw<kLeft, kC, kPumpOn>),
                                         click(53, 45, 45, 25, kCursorDown, pump_sw<kLeft, kC, kPumpOff>),
                                         click(53, 96, 45, 25, kCursorUp, pump_sw<kLeft, kD, kPumpOn>),
                                         click(53, 121, 45, 25, kCursorDown, pump_sw<kLeft, kD, kPumpOff>)))

KESTRANE_GAUGE(fuel_pumps_rh, gauge("kestrane fuel_pumps_rh_jm47", 100, update<kRight>)
                                  .elements(image(27296, 0x4001),             // e0 background
                                            icon(1040, 69, 43, 0x40000003),   // e1 A auto
                                            icon(1024, 69, 38, 0x40000003),   // e2 A off
                                            icon(1104, 70, 27, 0x40000003),   // e3 A on
                                            icon(1040, 69, 117, 0x40000003),  // e4 B auto
                                            icon(1024, 69, 112, 0x40000003),  // e5 B off
                                            icon(1104, 69, 101, 0x40000003),  // e6 B on
                                            icon(9536, 20, 43, 0x40000003),   // e7 C off
                                            icon(9552, 21, 27, 0x40000003),   // e8 C on
                                            icon(9536, 20, 117, 0x40000003),  // e9 D off
                                            icon(9552, 21, 101, 0x40000003),  // e10 D on
                                            icon(9728, 69, 43, 0x40000003),   // e11 A auto, night
                                            icon(9600, 69, 38, 0x40000003),   // e12 A off, night
                                            icon(9584, 70, 27, 0x40000003),   // e13 A on, night
                                            icon(9728, 69, 117, 0x40000003),  // e14 B auto, night
                                            icon(9600, 69, 112, 0x40000003),  // e15 B off, night
                                            icon(9584, 69, 101, 0x40000003),  // e16 B on, night
                                            icon(9760, 20, 43, 0x40000003),   // e17 C off, night
                                            icon(9744, 21, 27, 0x40000003),   // e18 C on, night
                                            icon(9760, 20, 117, 0x40000003),  // e19 D off, night
                                            icon(9744, 21, 101, 0x40000003))  // e20 D on, night
                                  .mouse(click(53, 20, 45, 17, kCursorUp, pump_sw<kRight, kA, kPumpOn>),
                                         click(53, 37, 45, 17, kCursorHand, pump_sw<kRight, kA, kPumpOff>),
                                         click(53, 54, 45, 17, kCursorDown, pump_sw<kRight, kA, kPumpAuto>),
                                         click(53, 96, 45, 17, kCursorUp, pump_sw<kRight, kB, kPumpOn>),
                                         click(53, 113, 45, 17, kCursorHand, pump_sw<kRight, kB, kPumpOff>),
                                         click(53, 130, 45, 17, kCursorDown, pump_sw<kRight, kB, kPumpAuto>),
                                         click(4, 20, 45, 25, kCursorUp, pump_sw<kRight, kC, kPumpOn>),
                                         click(4, 45, 45, 25, kCursorDown, pump_sw<kRight, kC, kPumpOff>),
                                         click(4, 96, 45, 25, kCursorUp, pump_sw<kRight, kD, kPumpOn>),
                                         click(4, 121, 45, 25, kCursorDown, pump_sw<kRight, kD, kPumpOff>)))
