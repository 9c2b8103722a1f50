// kestrane hydrau_greenpress_jm47 and hydrau_bluepress_jm47: the two circuits
// with engine-driven pumps, each pump behind a guarded switch.
//
// Green, the main circuit: a pump runs only while its control says so, and
// the circuit holds the higher of the two pressures.
// Blue: its two pumps turn with their engines whatever the switches say; the
// control only decides which pump feeds the circuit. A pump left switched off
// with its engine running overheats and fails after half an hour.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;
using namespace kestrane::hyd;

constexpr f64 kOverrunCycles = 32400;  // 30 minutes
ModuleVar overrun_clock = token(1);    // cycles

struct Overrun {
    u8 timing;
    u32 deadline;
};

struct EnginePump {
    u8& sw;
    u8& state;
    u16& press;
    u8& failed;
    ModuleVar& n2;  // its engine
};

struct CircuitState {
    u8 nominal[2];
    Overrun overrun[2];  // free-running pumps only
    u16 shown_press;     // needle copy, dead without 26 V AC
};

struct Circuit {
    EnginePump pump[2];
    u16& press;
    u16& level;
    u16 min_level;      // fluid the pumps need
    bool free_running;  // pumps turn whatever the control; it only picks the one that feeds
    CircuitState& st;
};

ModuleVar green_n2_eng1 = token(625), green_n2_eng2 = token(644);
ModuleVar blue_n2_eng1 = token(625), blue_n2_eng2 = token(644);
CircuitState green_state, blue_state;

constexpr Circuit kGreen{
    .pump = {{ac.hyd_green_pump1_sw, ac.hyd_green_pump1_state, ac.hyd_green_pump1_press,
              ac.hyd_green_pump1_failed, green_n2_eng1},
             {ac.hyd_green_pump2_sw, ac.hyd_green_pump2_state, ac.hyd_green_pump2_press,
              ac.hyd_green_pump2_failed, green_n2_eng2}},
    .press = ac.hyd_green_press,
    .level = ac.hyd_green_level,
    .min_level = 21,
    .free_running = false,
    .st = green_state,
};
constexpr Circuit kBlue{
    .pump = {{ac.hyd_blue_pump1_sw, ac.hyd_blue_pump1_state, ac.hyd_blue_pump1_press,
              ac.hyd_blue_pump1_failed, blue_n2_eng1},
             {ac.hyd_blue_pump2_sw, ac.hyd_blue_pump2_state, ac.hyd_blue_pump2_press,
              ac.hyd_blue_pump2_failed, blue_n2_eng2}},
    .press = ac.hyd_blue_press,
    .level = ac.hyd_blue_level,
    .min_level = 20,
    .free_running = true,
    .st = blue_state,
};

template <const Circuit& C, int N>
u32 KCALL pump_up(PixPoint*, u32) {
    return guarded_up(C.pump[N].sw), 0;
}
template <const Circuit& C, int N>
u32 KCALL pump_down(PixPoint*, u32) {
    return guarded_down(C.pump[N].sw), 0;
}

template <const Circuit& C>
f64 KCALL press_needle(Element*) {
    return clamp_back(C.st.shown_press, 0, 4000);
}

NeedlePoint green_scale[] = {
    {17, 118, 0, 0}, {17, 82, 1000, 0}, {48, 64, 2000, 0}, {79, 82, 3000, 0}, {79, 118, 4000, 0}};
NeedlePoint blue_scale[] = {
    {21, 118, 0, 0}, {21, 82, 1000, 0}, {52, 64, 2000, 0}, {83, 82, 3000, 0}, {83, 118, 4000, 0}};

// A pump needs its engine, fluid and no failure; in a circuit that is not
// free-running it also needs its control to say so.
bool delivers(const Circuit& c, const EnginePump& p, f64 n2) {
    return (c.free_running || p.state == kPumpRunning) && n2 >= 20.0 && c.level >= c.min_level &&
           p.failed == 0;
}

// A pump turning with its control off runs on a timer; back on line, or
// without pressure, the timer is forgotten.
void watch_overrun(Overrun& o, u16 press, u8 state, u8& failed, f64 now) {
    const bool turning = press != 0;
    if (turning && state == kPumpOff && !o.timing) {
        o.deadline = trunc_to<u32>(now + kOverrunCycles);
        o.timing = 1;
    }
    if (turning && state == kPumpOff && o.timing && now >= o.deadline) {
        failed = 1;
        o.timing = 0;
    }
    if ((state == kPumpRunning && turning) || !turning)
        o.timing = 0;
}

void circuit_cycle(GaugeHeader* g, const Circuit& c) {
    const EnginePump& p1 = c.pump[0];
    const EnginePump& p2 = c.pump[1];
    const f64 n2_1 = host::read(p1.n2);
    const f64 n2_2 = host::read(p2.n2);

    pump_control(p1.sw, p1.state);
    pump_control(p2.sw, p2.state);
    engine_pump(p1.press, c.st.nominal[0], delivers(c, p1, n2_1));
    engine_pump(p2.press, c.st.nominal[1], delivers(c, p2, n2_2));

    if (!c.free_running) {
        c.press = p1.press > p2.press ? p1.press : p2.press;
    } else {
        const f64 now = host::read(overrun_clock);
        if (p1.state == kPumpRunning && p1.press >= p2.press)
            c.press = p1.press;
        else if (p2.state == kPumpRunning)
            c.press = p2.press;
        else
            c.press = bleed(c.press);

        watch_overrun(c.st.overrun[0], p1.press, p1.state, p1.failed, now);
        watch_overrun(c.st.overrun[1], p2.press, p2.state, p2.failed, now);
    }

    c.st.shown_press = ac.elec_ac_26v_bus == 1 ? c.press : 0;

    show_pump_panel(g, {p1.sw, p2.sw, p1.state, p2.state, p1.press, p2.press});
}

template <const Circuit& C>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        circuit_cycle(g, C);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(hydrau_greenpress,
    gauge("kestrane hydrau_greenpress_jm47", 96, update<kGreen>)
        .elements(image(26720, 0x4001),                  // e0 background
                  icon(31760, 14, 150, 0x40000003),      // e1 pump 1 low pressure
                  icon(31760, 57, 150, 0x40000003),      // e2 pump 2 low pressure
                  icon(31776, 14, 185, 0x40000003),      // e3 pump 1 not running
                  icon(31792, 14, 185, 0x40000003),      // e4 pump 1 running
                  icon(31776, 57, 185, 0x40000003),      // e5 pump 2 not running
                  icon(31792, 57, 185, 0x40000003),      // e6 pump 2 running
                  icon(31808, 9, 219, 0x40000003),       // e7 pump 1 switch down
                  icon(31824, 9, 219, 0x40000003),       // e8 pump 1 switch up
                  icon(31808, 52, 219, 0x40000003),      // e9 pump 2 switch down
                  icon(31824, 52, 219, 0x40000003),      // e10 pump 2 switch up
                  icon(31840, 9, 219, 0x40000003),       // e11 pump 1 guard open
                  icon(31856, 9, 219, 0x40000003),       // e12 pump 1 guard closed
                  icon(31840, 52, 219, 0x40000003),      // e13 pump 2 guard open
                  icon(31856, 52, 219, 0x40000003),      // e14 pump 2 guard closed
                  needle(31872, 48, 100, 4, 32, 0x4003, press_needle<kGreen>, green_scale))  // e15 pressure
        .mouse(click(9, 219, 43, 39, kCursorUp, pump_up<kGreen, 0>),
               click(9, 258, 43, 39, kCursorDown, pump_down<kGreen, 0>),
               click(52, 219, 43, 39, kCursorUp, pump_up<kGreen, 1>),
               click(52, 258, 43, 39, kCursorDown, pump_down<kGreen, 1>)))

KESTRANE_GAUGE(hydrau_bluepress,
    gauge("kestrane hydrau_bluepress_jm47", 105, update<kBlue>)
        .elements(image(26736, 0x4001),                  // e0 background
                  icon(31888, 6, 150, 0x40000003),       // e1 pump 1 low pressure
                  icon(31888, 49, 150, 0x40000003),      // e2 pump 2 low pressure
                  icon(31904, 6, 185, 0x40000003),       // e3 pump 1 not running
                  icon(31920, 6, 185, 0x40000003),       // e4 pump 1 running
                  icon(31904, 49, 185, 0x40000003),      // e5 pump 2 not running
                  icon(31920, 49, 185, 0x40000003),      // e6 pump 2 running
                  icon(31936, 1, 219, 0x40000003),       // e7 pump 1 switch down
                  icon(31952, 1, 219, 0x40000003),       // e8 pump 1 switch up
                  icon(31936, 44, 219, 0x40000003),      // e9 pump 2 switch down
                  icon(31952, 44, 219, 0x40000003),      // e10 pump 2 switch up
                  icon(31968, 1, 219, 0x40000003),       // e11 pump 1 guard open
                  icon(31984, 1, 219, 0x40000003),       // e12 pump 1 guard closed
                  icon(31968, 44, 219, 0x40000003),      // e13 pump 2 guard open
                  icon(31984, 44, 219, 0x40000003),      // e14 pump 2 guard closed
                  needle(32000, 52, 100, 4, 32, 0x4003, press_needle<kBlue>, blue_scale))  // e15 pressure
        .mouse(click(1, 219, 43, 39, kCursorUp, pump_up<kBlue, 0>),
               click(1, 258, 43, 39, kCursorDown, pump_down<kBlue, 0>),
               click(44, 219, 43, 39, kCursorUp, pump_up<kBlue, 1>),
               click(44, 258, 43, 39, kCursorDown, pump_down<kBlue, 1>)))
// clang-format on
