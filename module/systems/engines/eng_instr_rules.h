// Engine and fuel instruments of the centre panel: the rules the left and
// right (engine 1 and 2) gauges share. Each gauge keeps its own private state
// and passes it in together with its shared fields and host variables.
#pragma once

#include <cmath>

#include "frame/drum.h"
#include "frame/gauge.h"

namespace kestrane::eng_instr {

// Needles run up at a limited rate and drop at once: within `band` below its
// target a needle takes the target, otherwise it climbs by `step`.
inline void slew_up(f64& shown, f64 target, f64 band, f64 step) {
    if (target - shown <= band)
        shown = target;
    else
        shown += step;
}

// Unpowered needles sink by `step` a cycle down to their stop.
inline void sink(f64& shown, f64 step, f64 stop) {
    shown -= step;
    if (shown < stop)
        shown = stop;
}

inline f64 whole(f64 v) {
    return static_cast<f64>(trunc_to<i32>(v));
}

// ---------------------------------------------------------------- EPR

struct Epr {
    f64 target;    // EPR x 100 read last cycle
    i32 digit[3];  // reference digits: hundreds, tens, units
};

inline void epr_cycle(Epr& s, f64& shown, f64 ref, const char* named) {
    const i32 hundreds = trunc_to<i32>(ref / 100.0);
    const i32 tens = trunc_to<i32>((ref - 100.0 * hundreds) / 10.0);
    s.digit[0] = hundreds;
    s.digit[1] = tens;
    s.digit[2] = trunc_to<i32>(ref - (100.0 * hundreds + 10.0 * tens));
    if (ac.elec_ac_26v_bus == 1) {
        slew_up(shown, s.target, 20.0, 20.0);
    } else {
        shown -= 20.0;
        if (shown <= 0.0)
            shown = 0.0;
    }
    // the engine value reaches the needle on the next cycle
    s.target = host::named_get(named) * 100.0;
}

// Reference knob, one step per call while held.
inline void epr_ref_down(f64& ref) {
    ref = ref - 1.0 < 100.0 ? 100.0 : ref - 1.0;
}
inline void epr_ref_up(f64& ref) {
    ref = ref + 1.0 > 250.0 ? 250.0 : ref + 1.0;
}

// Hundreds drum carries 0..3, the others 0..9.
inline constexpr i32 kEprHundredsPositions = 4;

inline NeedlePoint epr_scale[] = {{26, 79, 0, 0},   {15, 46, 50, 0},  {36, 18, 100, 0},
                                  {70, 18, 150, 0}, {91, 46, 200, 0}, {80, 79, 250, 0}};
inline NeedlePoint epr_ref_scale[] = {{26, 79, 0, 0},   {15, 46, 50, 0},  {36, 18, 100, 0},
                                      {70, 18, 150, 0}, {91, 46, 200, 0}, {80, 79, 250, 0}};

// ---------------------------------------------------------------- exhaust temperature

// Shows the power-off flag (e1) itself.
inline void egt_cycle(GaugeHeader* g, f64& shown, f64& remainder, f64 rankine) {
    if (ac.elec_ac_26v_bus == 1) {
        show(g, 1, false);
        if (shown < 100.0) {
            shown = 100.0;
            remainder = 0.0;
        } else {
            slew_up(shown, ((rankine - 459.67 - 32.0) / 1.8) / 1.6, 20.0, 20.0);
            remainder = shown - 100.0 * whole(shown / 100.0);
        }
    } else {
        sink(shown, 20.0, 100.0);
        remainder = 0.0;
        show(g, 1, true);
    }
}

inline NeedlePoint egt_scale[] = {{26, 82, 100, 0}, {17, 68, 200, 0},  {14, 51, 300, 0},  {19, 35, 400, 0},
                                  {30, 22, 500, 0}, {45, 15, 600, 0},  {63, 15, 700, 0},  {78, 22, 800, 0},
                                  {89, 35, 900, 0}, {94, 51, 1000, 0}, {91, 68, 1100, 0}, {82, 82, 1200, 0}};
// the small needle goes once round its own dial per hundred
inline NeedlePoint egt_hundreds_scale[] = {
    {86, 43, 0, 0}, {96, 53, 25, 0}, {86, 63, 50, 0}, {76, 53, 75, 0}, {86, 43, 100, 0}};

// ---------------------------------------------------------------- N1, N2

struct Spool {
    f64 target;
    f64 units;  // the small needle: the units of the reading
};

inline void spool_cycle(Spool& s, f64& shown, const char* named) {
    s.target = host::named_get(named) * 100.0;
    slew_up(shown, s.target, 20.0, 5.0);
    s.units = shown - 10.0 * whole(shown / 10.0);
}

inline NeedlePoint spool_scale[] = {{26, 82, 0, 0},  {17, 68, 10, 0}, {14, 51, 20, 0},  {19, 35, 30, 0},
                                    {30, 22, 40, 0}, {45, 15, 50, 0}, {63, 15, 60, 0},  {78, 22, 70, 0},
                                    {89, 35, 80, 0}, {94, 51, 90, 0}, {91, 68, 100, 0}, {82, 82, 110, 0}};
inline NeedlePoint spool_units_scale[] = {
    {35, 21, 0, 0}, {45, 31, 2.5, 0}, {35, 41, 5, 0}, {25, 31, 7.5, 0}, {35, 21, 10, 0}};

// ---------------------------------------------------------------- fuel and oil quantity

// The two tanks of one side: level (fraction x 8388608) and capacity (gallons).
struct TankPair {
    ModuleVar level_a, capacity_a, level_b, capacity_b;
};

// percent x gallons x pounds per gallon x 0.453 / divisor: kg for 100, kg x 10 for 10.
// Huge or missing tank figures saturate rather than reach the needle as inf or NaN.
inline f64 tank_mass(f64 level, f64 capacity, f64 lb_per_gal, f64 divisor) {
    return bounded((level / 83886.08) * capacity * (lb_per_gal / 3.84) * 0.453 * 3.84 / divisor);
}

// Main quantity of a side: the larger tank, the second one on equal capacities.
inline f64 main_quantity(TankPair& t, ModuleVar& weight) {
    const f64 cap_a = host::read(t.capacity_a);
    const f64 cap_b = host::read(t.capacity_b);
    const f64 lb = host::read(weight);
    if (cap_a > cap_b)
        return tank_mass(host::read(t.level_a), cap_a, lb, 100.0);
    return tank_mass(host::read(t.level_b), cap_b, lb, 100.0);
}

// Auxiliary quantity (kg x 10): the smaller tank of the side; a side with no
// second tank shows the third tank's level instead, and keeps its last value
// when there is none either.
inline void aux_quantity(f64& aux, TankPair& t, ModuleVar& weight, ModuleVar& third_level,
                         ModuleVar& third_capacity) {
    const f64 cap_a = host::read(t.capacity_a);
    const f64 cap_b = host::read(t.capacity_b);
    if (cap_b <= 0.0) {
        if (host::read(third_capacity) > 0.0)
            aux = bounded((host::read(third_level) / 83886.08) * 100.0);
        return;
    }
    const f64 lb = host::read(weight);
    if (cap_a <= cap_b)
        aux = tank_mass(host::read(t.level_a), cap_a, lb, 10.0);
    else
        aux = tank_mass(host::read(t.level_b), cap_b, lb, 10.0);
}

// Quantity needle, powered: follows the quantity, or runs the test sweep (up
// to full scale, then down onto the quantity) while its test is requested.
struct Sweep {
    f64 rise;  // per cycle on the way up
    f64 top;   // full scale
};
inline void quantity_needle(f64& shown, u8& request, u8& falling, f64 quantity, Sweep sw) {
    if (request != 1) {
        slew_up(shown, quantity, 100.0, 500.0);
        return;
    }
    if (falling == 0) {
        if (shown < sw.top)
            shown += sw.rise;
        else
            falling = 1;
    } else if (shown - quantity <= 100.0) {
        shown = quantity;
        request = 0;
        falling = 0;
    } else {
        shown -= 250.0;
    }
}

inline constexpr Sweep kMainSweep{100.0, 7000.0};
inline constexpr Sweep kAuxSweep{250.0, 12000.0};
inline constexpr Sweep kOilSweep{250.0, 18000.0};

inline NeedlePoint main_qty_scale[] = {{26, 82, 0, 0},    {14, 58, 1000, 0}, {20, 33, 2000, 0},
                                       {41, 16, 3000, 0}, {67, 16, 4000, 0}, {88, 33, 5000, 0},
                                       {94, 58, 6000, 0}, {82, 82, 7000, 0}};
inline NeedlePoint aux_qty_scale[] = {{26, 82, 0, 0},    {14, 54, 2000, 0}, {26, 26, 4000, 0},
                                      {54, 14, 6000, 0}, {82, 26, 8000, 0}, {94, 54, 10000, 0},
                                      {82, 82, 12000, 0}};
inline NeedlePoint oil_qty_scale[] = {{26, 82, 0, 0},    {14, 54, 3000, 0},  {26, 26, 6000, 0},
                                      {54, 14, 9000, 0}, {82, 26, 12000, 0}, {94, 54, 15000, 0},
                                      {82, 82, 18000, 0}};

// ---------------------------------------------------------------- push-buttons

// A push-button shows its pressed image for 9 ticks after a click.
struct PushButton {
    u8 pressed;
    u8 running;
    i32 end_tick;
};

inline void push_button_cycle(GaugeHeader* g, PushButton& b, f64 tick, int released_image, int pressed_image,
                              u8* request_to_clear = nullptr) {
    if (b.pressed == 1 && b.running == 0) {
        b.end_tick = trunc_to<i32>(tick + 9.0);
        b.running = 1;
        if (request_to_clear != nullptr)
            *request_to_clear = 0;
    }
    bool down = false;
    if (b.running == 1) {
        if (tick < static_cast<f64>(b.end_tick)) {
            down = true;
        } else {
            b.pressed = 0;
            b.running = 0;
        }
    }
    show(g, pressed_image, down);
    show(g, released_image, !down);
}

inline void push_button_press(PushButton& b, u8& request) {
    request = 1;
    b.pressed = 1;
}

// ---------------------------------------------------------------- fuel flow and fuel used

struct FuelCounter {
    f64 next_time;  // simulation seconds of the next accumulation
    u8 armed;
    f64 drum[5];  // units, tens, hundreds, thousands, ten-thousands
};

// Flow needle, kg/h: needs the 26 V AC and the generator bus.
inline f64 flow_needle(f64& shown, f64 flow_lb_h) {
    if (ac.elec_ac_26v_bus == 1 && ac.elec_gen_bus == 1)
        slew_up(shown, flow_lb_h * 453.0 / 1000.0, 200.0, 100.0);
    else
        sink(shown, 100.0, 0.0);
    return clamp_back(shown, 0.0, 5500.0);
}

// Fuel used, kg: a quarter-second sample of the flow.
inline void fuel_used_cycle(FuelCounter& c, f64& used, u8 reset, f64 sim_time, ModuleVar& flow) {
    if (ac.elec_gen_bus == 1 && ac.elec_ac_26v_bus == 1) {
        if (c.armed == 0) {
            c.next_time = sim_time + 0.25;
            c.armed = 1;
        }
        if (c.armed == 1 && sim_time >= c.next_time) {
            // a sample the host cannot give is skipped, not added for good
            const f64 next = used + (host::read(flow) / 14400.0) * 1.3407037 * 0.453;
            if (std::isfinite(next))
                used = next;
            c.armed = 0;
        }
    }
    if (reset == 1 && ac.elec_ess_bus == 1)
        used = 0.0;
}

// Counter drums: the units drum turns continuously; each upper drum holds its
// digit and turns on to the next one during the last kilogram before it.
inline f64 counter_drum(f64 v, f64 threshold, f64 scale) {
    const f64 digit = whole(v);
    const f64 fraction = v - digit;
    return fraction <= threshold ? digit : digit + (fraction - threshold) * scale;
}

inline void counter_drums(f64 used, f64 drum[5]) {
    const f64 ten_thousands = used / 10000.0;
    const f64 thousands = (used - 10000.0 * whole(used / 10000.0)) / 1000.0;
    const f64 hundreds = (used - 1000.0 * whole(used / 1000.0)) / 100.0;
    const f64 tens = (used - 100.0 * whole(used / 100.0)) / 10.0;
    const f64 units = used - 10.0 * whole(used / 10.0);
    drum[4] = ten_thousands > 9.9999 ? 0.0 : counter_drum(ten_thousands, 0.9999, 10000.0);
    drum[3] = counter_drum(thousands, 0.999, 1000.0);
    drum[2] = counter_drum(hundreds, 0.99, 100.0);
    drum[1] = counter_drum(tens, 0.9, 10.0);
    drum[0] = units > 9.999 ? 0.0 : units;
}

inline NeedlePoint flow_scale[] = {{79, 161, 0, 0},     {65, 140, 500, 0},   {61, 115, 1000, 0},
                                   {68, 90, 1500, 0},   {85, 71, 2000, 0},   {108, 60, 2500, 0},
                                   {134, 60, 3000, 0},  {157, 71, 3500, 0},  {174, 90, 4000, 0},
                                   {181, 115, 4500, 0}, {177, 140, 5000, 0}, {163, 161, 5500, 0}};

// ---------------------------------------------------------------- temperatures, oil pressure

// Fuel temperature, degrees C, from the engine's oil temperature (Rankine).
inline f32 fuel_temperature(f64 rankine) {
    return trunc_to<f32>(((rankine - 491.67) * 0.55556) / 1.5);
}

// Fuel temperature needle: on the essential bus; unpowered it drops to the stop.
inline void fuel_temp_needle(f64& shown, f32 temperature) {
    if (ac.elec_ess_bus == 1) {
        if (temperature - trunc_to<f32>(shown) <= 20.0f)
            shown = temperature;
        else
            shown += 20.0;
    } else {
        shown -= 20.0;
        if (shown <= -100.0)
            shown = -80.0;
    }
}

inline f64 oil_pressure(f64 host_value) {
    if (host_value <= 3670.0)
        return host_value * 1.1;
    return host_value * 1.1 * 0.197 + 3241.94;  // flatter above 3670
}

// Oil temperature needle: on the secondary DC bus.
inline void oil_temp_needle(f64& shown, f64 rankine) {
    if (ac.elec_dc_sec_bus == 1)
        slew_up(shown, (rankine - 459.67 - 32.0) / 1.8, 20.0, 20.0);
    else
        sink(shown, 20.0, -100.0);
}

inline NeedlePoint fuel_temp_scale[] = {{26, 82, -80, 0}, {15, 61, -50, 0}, {28, 24, 0, 0},
                                        {66, 16, 50, 0},  {93, 45, 100, 0}, {82, 82, 150, 0}};
inline NeedlePoint oil_press_scale_1[] = {{26, 82, 0, 0},    {14, 48, 2000, 0}, {36, 18, 4000, 0},
                                          {72, 18, 6000, 0}, {94, 48, 8000, 0}, {82, 82, 10000, 0}};
inline NeedlePoint oil_press_scale_2[] = {{26, 82, 0, 0},    {14, 48, 2000, 0}, {36, 18, 4000, 0},
                                          {72, 18, 6000, 0}, {94, 48, 8000, 0}, {82, 82, 10000, 0}};
inline NeedlePoint oil_temp_scale[] = {{26, 82, -100, 0}, {14, 54, -50, 0}, {26, 26, 0, 0},  {54, 14, 50, 0},
                                       {82, 26, 100, 0},  {94, 54, 150, 0}, {82, 82, 200, 0}};

// ---------------------------------------------------------------- drawing

inline constexpr u32 kNeedleFlags = 0x4003;
inline constexpr u32 kDrumFlags = 0x4003;
inline constexpr u32 kHiddenIcon = 0x40000003;

// Drums move along y only.
inline f64 KCALL drum_x(Element*) {
    return 1.0;
}

}  // namespace kestrane::eng_instr
