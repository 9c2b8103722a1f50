// Fuel system rules shared by the left and right fuel panel gauges: booster
// pumps, feed selection, line pressures and the panel lights.
#pragma once

#include "frame/gauge.h"

namespace kestrane::fuel {

// Booster pump switch positions (A and B have all three, C and D on/off).
inline constexpr u8 kPumpOff = 0;
inline constexpr u8 kPumpOn = 1;
inline constexpr u8 kPumpAuto = 2;

// Low-level and automatic pump B threshold, kg in the main tank.
inline constexpr f64 kLowLevelKg = 160.0;

// One side's booster pumps: switch positions, running flags and supplies.
struct PumpSide {
    u8* sw[4];   // switches A, B, C, D
    u8* run[4];  // pumps A, B, C, D running
    u8* dc_bus;  // DC bus of the side (B and D)
    u8* hp_cock;
    u8* lowlvl_test;
    f64* qty_main;
};

inline const PumpSide kLeftPumps{
    {&ac.fuel_pump_a_sw_lh, &ac.fuel_pump_b_sw_lh, &ac.fuel_pump_c_sw_lh, &ac.fuel_pump_d_sw_lh},
    {&ac.fuel_pump_a_lh, &ac.fuel_pump_b_lh, &ac.fuel_pump_c_lh, &ac.fuel_pump_d_lh},
    &ac.elec_dc_bus_1,
    &ac.fuel_hp_cock_lh,
    &ac.fuel_lowlvl_test_lh,
    &ac.fuel_qty_main_lh,
};
inline const PumpSide kRightPumps{
    {&ac.fuel_pump_a_sw_rh, &ac.fuel_pump_b_sw_rh, &ac.fuel_pump_c_sw_rh, &ac.fuel_pump_d_sw_rh},
    {&ac.fuel_pump_a_rh, &ac.fuel_pump_b_rh, &ac.fuel_pump_c_rh, &ac.fuel_pump_d_rh},
    &ac.elec_dc_bus_2,
    &ac.fuel_hp_cock_rh,
    &ac.fuel_lowlvl_test_rh,
    &ac.fuel_qty_main_rh,
};

inline bool any_pump(const PumpSide& s) {
    return *s.run[0] == 1 || *s.run[1] == 1 || *s.run[2] == 1 || *s.run[3] == 1;
}
inline bool main_pump(const PumpSide& s) {
    return *s.run[0] == 1 || *s.run[1] == 1;
}

// Runs the four pumps of a side from their switches and buses. Pump A in
// automatic stands in for C and D, judged on their flags of the last cycle.
inline void run_pumps(const PumpSide& s) {
    const bool ess = ac.elec_ess_bus == 1;
    const bool dc = *s.dc_bus == 1;
    const bool c_and_d_stopped = *s.run[2] != 1 && *s.run[3] != 1;

    bool a = false;
    if (*s.sw[0] == kPumpOn)
        a = ess;
    else if (*s.sw[0] == kPumpAuto)
        a = c_and_d_stopped && ess && *s.hp_cock == 1;

    bool b = false;
    if (*s.sw[1] == kPumpOn)
        b = dc;
    else if (*s.sw[1] == kPumpAuto)
        b = dc && (*s.lowlvl_test == 1 || *s.qty_main <= kLowLevelKg);

    *s.run[0] = a;
    *s.run[1] = b;
    *s.run[2] = *s.sw[2] == kPumpOn && ac.elec_dc_sec_bus == 1;
    *s.run[3] = *s.sw[3] == kPumpOn && dc;
}

// Switch images e1..e20: per switch the day icons, then the night set.
// Three-position switches A and B: auto, off, on; C and D: off, on.
inline void show_pump_switches(GaugeHeader* g, const PumpSide& s) {
    const bool night = ac.light_panel_night == 1;
    const u8 a = *s.sw[0], b = *s.sw[1];
    const bool icons[10] = {
        a == kPumpAuto,
        a != kPumpOn && a != kPumpAuto,
        a == kPumpOn,
        b == kPumpAuto,
        b != kPumpOn && b != kPumpAuto,
        b == kPumpOn,
        *s.sw[2] != kPumpOn,
        *s.sw[2] == kPumpOn,
        *s.sw[3] != kPumpOn,
        *s.sw[3] == kPumpOn,
    };
    for (int i = 0; i < 10; ++i) {
        show(g, 1 + i, icons[i] && !night);
        show(g, 11 + i, icons[i] && night);
    }
}

// Host fuel selector as copied: 0, 2, 3, 4, 5 kept, anything else 6.
inline u8 selector_copy(f64 host_value) {
    const i32 v = trunc_to<i32>(host_value);
    if (v == 0 || (v >= 2 && v <= 5))
        return static_cast<u8>(v);
    return 6;
}

// Own-side feed: nothing with the tank valve shut; `boosted` (2 or 3) with
// pump A or B running; `drawn` (4 or 5) with C or D alone, or with no pump
// while the engine can still draw its fuel by suction.
inline u8 own_side_feed(bool valve_open, const PumpSide& s, bool suction_possible, u8 boosted, u8 drawn) {
    if (!valve_open)
        return 0;
    if (!any_pump(s))
        return suction_possible ? drawn : 0;
    if (!main_pump(s))
        return drawn;
    return boosted;
}

// Engine 1 and engine 2 selector events for the values 0, 2, 3, 4, 5.
inline u32 selector_event(int engine, u8 value) {
    static constexpr u32 eng1[6] = {65955, 0, 65957, 65958, 65959, 65960};
    static constexpr u32 eng2[6] = {66516, 0, 66518, 66519, 66520, 66521};
    if (value > 5 || value == 1)
        value = 0;
    return engine == 1 ? eng1[value] : eng2[value];
}

// Sends the selector event until the host's copy agrees.
inline void keep_selector(int engine, u8 wanted, u8 host_copy) {
    if (wanted != host_copy)
        host::send_event(selector_event(engine, wanted));
}

// Loss of line pressure: faster while an engine draws on the line.
inline i16 decay(i16 p, bool demand) {
    if (demand)
        return p < 10 ? 0 : static_cast<i16>(p - 10);
    return p < 3 ? 0 : static_cast<i16>(p - 3);
}

// One cycle of a line's pressure. Pump A alone climbs slowly to 250; the
// others climb faster and settle the line at 250 from either side.
inline i16 line_pressure(i16 p, i16 other_line, bool own_valve, bool other_valve, bool crossfeed,
                         const PumpSide& s, bool demand) {
    if (other_valve && crossfeed && !any_pump(s))
        return other_line;
    if (!own_valve)
        return decay(p, demand);
    if (*s.run[0] == 1)
        return p < 245 ? static_cast<i16>(p + 5) : i16{250};
    if (*s.run[1] != 1 && *s.run[2] != 1 && *s.run[3] != 1)
        return decay(p, demand);
    if (p <= 240)
        return static_cast<i16>(p + 10);
    if (demand)
        return p >= 260 ? static_cast<i16>(p - 10) : i16{250};
    return p >= 253 ? static_cast<i16>(p - 3) : i16{250};
}

// Low-pressure light: below 81 on the indicator with the HP cock open.
inline void lowpress_light(GaugeHeader* g, i16 indicated, u8 hp_cock, u8 test, u8& light) {
    light = ac.elec_ess_bus == 1 && ((indicated < 81 && hp_cock == 1) || test == 1);
    show(g, 1, light == 1);
}
// The test only comes on with pressure on the indicator or the HP cock shut.
inline void lowpress_test(u8& test, i16 indicated, u8 hp_cock) {
    test = test == 0 && (indicated > 8 || hp_cock == 0);
}

// Low-level light: 160 kg or less in the main tank.
inline void lowlvl_light(GaugeHeader* g, f64 qty, u8 test, u8& light) {
    light = ac.elec_ess_bus == 1 && (qty <= kLowLevelKg || test == 1);
    show(g, 1, light == 1);
}
// The test cannot come on once the level is already low: the click clears it.
inline void lowlvl_test(u8& test, f64 qty) {
    test = test == 0 && qty > kLowLevelKg;
}

// Day or night image of a switch position or indicator.
inline void show_day_night(GaugeHeader* g, int day, int night, bool on) {
    const bool dark = ac.light_panel_night == 1;
    show(g, day, on && !dark);
    show(g, night, on && dark);
}

}  // namespace kestrane::fuel
