// kestrane fuel_pumps_rh_jm47: right booster pumps A to D. Runs the pumps and
// keeps engine 2's selector on the feed the right side can give (or on the
// left side's through the crossfeed). The left panel copies the selectors.
#include "frame/gauge.h"
#include "systems/engines/fuel_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::fuel;

ModuleVar altitude = token(74), n2 = token(644);

u32 KCALL a_on(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_a_sw_rh, kPumpOn), 0;
}
u32 KCALL a_off(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_a_sw_rh, kPumpOff), 0;
}
u32 KCALL a_auto(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_a_sw_rh, kPumpAuto), 0;
}
u32 KCALL b_on(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_b_sw_rh, kPumpOn), 0;
}
u32 KCALL b_off(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_b_sw_rh, kPumpOff), 0;
}
u32 KCALL b_auto(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_b_sw_rh, kPumpAuto), 0;
}
u32 KCALL c_on(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_c_sw_rh, kPumpOn), 0;
}
u32 KCALL c_off(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_c_sw_rh, kPumpOff), 0;
}
u32 KCALL d_on(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_d_sw_rh, kPumpOn), 0;
}
u32 KCALL d_off(PixPoint*, u32) {
    return set_switch(ac.fuel_pump_d_sw_rh, kPumpOff), 0;
}

// Engine 2's feed. Through the crossfeed it shares engine 1's, but only with
// a left pump pushing fuel across. Its suction ceiling is 250 ft lower.
u8 engine_2_feed() {
    const f64 alt = host::read(altitude);
    const f64 n2_pct = host::read(n2);
    const bool suction = alt < 30750.0 && n2_pct >= 20.0;
    const bool valve_open = ac.fuel_valve_rh == 1;
    if (ac.fuel_crossfeed == 1 && ac.elec_ess_bus == 1 &&
        (!valve_open || (!any_pump(kRightPumps) && !suction))) {
        if (ac.fuel_valve_lh == 1 && any_pump(kLeftPumps) &&
            (ac.fuel_feed_eng1 == 2 || ac.fuel_feed_eng1 == 4))
            return ac.fuel_feed_eng1;
        return 0;
    }
    return own_side_feed(valve_open, kRightPumps, suction, 3, 5);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    run_pumps(kRightPumps);
    keep_selector(2, engine_2_feed(), ac.fuel_feed_eng2);
    show_pump_switches(g, kRightPumps);
}
}  // namespace

KESTRANE_GAUGE(fuel_pumps_rh,
               gauge("kestrane fuel_pumps_rh_jm47", 100, update)
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
                   .mouse(click(53, 20, 45, 17, kCursorUp, a_on), click(53, 37, 45, 17, kCursorHand, a_off),
                          click(53, 54, 45, 17, kCursorDown, a_auto), click(53, 96, 45, 17, kCursorUp, b_on),
                          click(53, 113, 45, 17, kCursorHand, b_off),
                          click(53, 130, 45, 17, kCursorDown, b_auto), click(4, 20, 45, 25, kCursorUp, c_on),
                          click(4, 45, 45, 25, kCursorDown, c_off), click(4, 96, 45, 25, kCursorUp, d_on),
                          click(4, 121, 45, 25, kCursorDown, d_off)))
