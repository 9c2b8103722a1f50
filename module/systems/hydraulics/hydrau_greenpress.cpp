// kestrane hydrau_greenpress_jm47: green circuit, the main one. Two
// engine-driven pumps, each behind a guarded switch; the circuit holds the
// higher of the two pressures.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;
using namespace kestrane::hyd;

ModuleVar n2_eng1 = token(625), n2_eng2 = token(644);

u8 nominal1, nominal2;
u16 shown_press;  // needle copy, dead without 26 V AC

u32 KCALL pump1_up(PixPoint*, u32) {
    return guarded_up(ac.hyd_green_pump1_sw), 0;
}
u32 KCALL pump1_down(PixPoint*, u32) {
    return guarded_down(ac.hyd_green_pump1_sw), 0;
}
u32 KCALL pump2_up(PixPoint*, u32) {
    return guarded_up(ac.hyd_green_pump2_sw), 0;
}
u32 KCALL pump2_down(PixPoint*, u32) {
    return guarded_down(ac.hyd_green_pump2_sw), 0;
}

f64 KCALL press_needle(Element*) {
    return clamp_back(shown_press, 0, 4000);
}

NeedlePoint press_scale[] = {
    {17, 118, 0, 0}, {17, 82, 1000, 0}, {48, 64, 2000, 0}, {79, 82, 3000, 0}, {79, 118, 4000, 0}};

// A green pump needs its engine, fluid and no failure, and runs only while
// its control says so.
bool delivers(u8 state, f64 n2, u8 failed) {
    return state == kPumpRunning && n2 >= 20.0 && ac.hyd_green_level >= 21 && failed == 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 n2_1 = host::read(n2_eng1);
    const f64 n2_2 = host::read(n2_eng2);

    pump_control(ac.hyd_green_pump1_sw, ac.hyd_green_pump1_state);
    pump_control(ac.hyd_green_pump2_sw, ac.hyd_green_pump2_state);
    engine_pump(ac.hyd_green_pump1_press, nominal1,
                delivers(ac.hyd_green_pump1_state, n2_1, ac.hyd_green_pump1_failed));
    engine_pump(ac.hyd_green_pump2_press, nominal2,
                delivers(ac.hyd_green_pump2_state, n2_2, ac.hyd_green_pump2_failed));

    ac.hyd_green_press = ac.hyd_green_pump1_press > ac.hyd_green_pump2_press ? ac.hyd_green_pump1_press
                                                                             : ac.hyd_green_pump2_press;
    shown_press = ac.elec_ac_26v_bus == 1 ? ac.hyd_green_press : 0;

    show_pump_panel(g, {ac.hyd_green_pump1_sw, ac.hyd_green_pump2_sw, ac.hyd_green_pump1_state,
                        ac.hyd_green_pump2_state, ac.hyd_green_pump1_press, ac.hyd_green_pump2_press});
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(hydrau_greenpress,
    gauge("kestrane hydrau_greenpress_jm47", 96, update)
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
                  needle(31872, 48, 100, 4, 32, 0x4003, press_needle, press_scale))  // e15 pressure
        .mouse(click(9, 219, 43, 39, kCursorUp, pump1_up),
               click(9, 258, 43, 39, kCursorDown, pump1_down),
               click(52, 219, 43, 39, kCursorUp, pump2_up),
               click(52, 258, 43, 39, kCursorDown, pump2_down)))
// clang-format on
