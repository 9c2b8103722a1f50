// kestrane fuel_pumps_lh_jm47: left booster pumps A to D. Runs the pumps,
// copies the host's fuel selectors of both engines and keeps engine 1's
// selector on the feed the left side can give (or on the right side's
// through the crossfeed).
#include "frame/gauge.h"
#include "systems/engines/fuel_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::fuel;

ModuleVar selector_1 = token(307), selector_2 = token(906);
ModuleVar altitude = token(74), n2 = token(625);

u32 KCALL a_on(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_a_sw_lh, kPumpOn), 0;
}
u32 KCALL a_off(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_a_sw_lh, kPumpOff), 0;
}
u32 KCALL a_auto(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_a_sw_lh, kPumpAuto), 0;
}
u32 KCALL b_on(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_b_sw_lh, kPumpOn), 0;
}
u32 KCALL b_off(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_b_sw_lh, kPumpOff), 0;
}
u32 KCALL b_auto(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_b_sw_lh, kPumpAuto), 0;
}
u32 KCALL c_on(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_c_sw_lh, kPumpOn), 0;
}
u32 KCALL c_off(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_c_sw_lh, kPumpOff), 0;
}
u32 KCALL d_on(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_d_sw_lh, kPumpOn), 0;
}
u32 KCALL d_off(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_d_sw_lh, kPumpOff), 0;
}

// Engine 1's feed. Through the crossfeed it takes whatever the right side
// gives engine 2; otherwise its own side.
u8 engine_1_feed() {
    const f64 alt = host::read(altitude);
    const f64 n2_pct = host::read(n2);
    const bool suction = alt < 31000.0 && n2_pct >= 20.0;
    const bool valve_open = ac.fuel_valve_lh == 1;
    if (ac.fuel_crossfeed == 1 && ac.elec_ess_bus == 1 &&
        (!valve_open || (!any_pump(kLeftPumps) && !suction))) {
        if (ac.fuel_valve_rh == 1 && (ac.fuel_feed_eng2 == 3 || ac.fuel_feed_eng2 == 5))
            return ac.fuel_feed_eng2;
        return 0;
    }
    return own_side_feed(valve_open, kLeftPumps, suction, 2, 4);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    run_pumps(kLeftPumps);
    ac.fuel_feed_eng1 = selector_copy(host::read(selector_1));
    ac.fuel_feed_eng2 = selector_copy(host::read(selector_2));
    keep_selector(1, engine_1_feed(), ac.fuel_feed_eng1);
    show_pump_switches(g, kLeftPumps);
}
}  // namespace

KESTRANE_GAUGE(fuel_pumps_lh,
               gauge("kestrane fuel_pumps_lh_jm47", 100, update)
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
                   .mouse(click(4, 20, 45, 17, kCursorUp, a_on), click(4, 37, 45, 17, kCursorHand, a_off),
                          click(4, 54, 45, 17, kCursorDown, a_auto), click(4, 96, 45, 17, kCursorUp, b_on),
                          click(4, 113, 45, 17, kCursorHand, b_off),
                          click(4, 130, 45, 17, kCursorDown, b_auto), click(53, 20, 45, 25, kCursorUp, c_on),
                          click(53, 45, 45, 25, kCursorDown, c_off), click(53, 96, 45, 25, kCursorUp, d_on),
                          click(53, 121, 45, 25, kCursorDown, d_off)))
