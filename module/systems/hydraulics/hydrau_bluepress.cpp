// kestrane hydrau_bluepress_jm47: blue circuit. Its two pumps turn with
// their engines whatever the switches say; the control only decides which
// pump feeds the circuit. A pump left switched off with its engine running
// overheats and fails after half an hour.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;
using namespace kestrane::hyd;

ModuleVar n2_eng1 = token(625), n2_eng2 = token(644), cycle = token(1);

constexpr f64 kOverrunCycles = 32400;  // 30 minutes

struct Overrun {
    u8 timing;
    u32 deadline;
};

u8 nominal1, nominal2;
Overrun overrun1, overrun2;
u16 shown_press;  // needle copy, dead without 26 V AC

u32 KCALL pump1_up(PixPoint*, u32) {
    return guarded_up(ac.hyd_blue_pump1_sw), 0;
}
u32 KCALL pump1_down(PixPoint*, u32) {
    return guarded_down(ac.hyd_blue_pump1_sw), 0;
}
u32 KCALL pump2_up(PixPoint*, u32) {
    return guarded_up(ac.hyd_blue_pump2_sw), 0;
}
u32 KCALL pump2_down(PixPoint*, u32) {
    return guarded_down(ac.hyd_blue_pump2_sw), 0;
}

f64 KCALL press_needle(Element*) {
    return clamp_back(shown_press, 0, 4000);
}

NeedlePoint press_scale[] = {
    {21, 118, 0, 0}, {21, 82, 1000, 0}, {52, 64, 2000, 0}, {83, 82, 3000, 0}, {83, 118, 4000, 0}};

bool delivers(f64 n2, u8 failed) {
    return n2 >= 20.0 && ac.hyd_blue_level >= 20 && failed == 0;
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

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 n2_1 = host::read(n2_eng1);
    const f64 n2_2 = host::read(n2_eng2);
    const f64 now = host::read(cycle);

    pump_control(ac.hyd_blue_pump1_sw, ac.hyd_blue_pump1_state);
    pump_control(ac.hyd_blue_pump2_sw, ac.hyd_blue_pump2_state);
    engine_pump(ac.hyd_blue_pump1_press, nominal1, delivers(n2_1, ac.hyd_blue_pump1_failed));
    engine_pump(ac.hyd_blue_pump2_press, nominal2, delivers(n2_2, ac.hyd_blue_pump2_failed));

    if (ac.hyd_blue_pump1_state == kPumpRunning && ac.hyd_blue_pump1_press >= ac.hyd_blue_pump2_press)
        ac.hyd_blue_press = ac.hyd_blue_pump1_press;
    else if (ac.hyd_blue_pump2_state == kPumpRunning)
        ac.hyd_blue_press = ac.hyd_blue_pump2_press;
    else
        ac.hyd_blue_press = bleed(ac.hyd_blue_press);

    watch_overrun(overrun1, ac.hyd_blue_pump1_press, ac.hyd_blue_pump1_state, ac.hyd_blue_pump1_failed, now);
    watch_overrun(overrun2, ac.hyd_blue_pump2_press, ac.hyd_blue_pump2_state, ac.hyd_blue_pump2_failed, now);

    shown_press = ac.elec_ac_26v_bus == 1 ? ac.hyd_blue_press : 0;

    show_pump_panel(g, {ac.hyd_blue_pump1_sw, ac.hyd_blue_pump2_sw, ac.hyd_blue_pump1_state,
                        ac.hyd_blue_pump2_state, ac.hyd_blue_pump1_press, ac.hyd_blue_pump2_press});
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(hydrau_bluepress,
    gauge("kestrane hydrau_bluepress_jm47", 105, update)
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
                  needle(32000, 52, 100, 4, 32, 0x4003, press_needle, press_scale))  // e15 pressure
        .mouse(click(1, 219, 43, 39, kCursorUp, pump1_up),
               click(1, 258, 43, 39, kCursorDown, pump1_down),
               click(44, 219, 43, 39, kCursorUp, pump2_up),
               click(44, 258, 43, 39, kCursorDown, pump2_down)))
// clang-format on
