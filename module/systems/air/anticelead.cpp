// kestrane anticelead_dn_jm47, anticelead_mid_jm47 and anticelead_up_jm47:
// leading-edge anti-icing. The lower panel heats the leading edges up in
// flight on the essential bus; the middle panel holds the switches, the heat
// indicators and the leading-edge temperature, and keeps the host's structural
// de-icing in step; the upper panel shows the two duct temperatures. The
// indicator push-buttons of the lower and middle panels only light their lamps.
#include "frame/follow.h"

namespace {
using namespace kestrane;

ModuleVar on_ground = token(60), tat_256 = token(350), oat = token(341), structural_deice = token(905);

constexpr u32 kNeedleFlags = 0x4003;

bool ess_powered() {
    return ac.elec_ess_bus == 1;
}

// Moves `v` toward `target` by `step` a cycle; within `band` it takes the target.
void approach(f32& v, f64 target, f64 step, f64 band) {
    if (!(target == target))
        return;  // no reading from the host: hold
    const f64 now = v;
    if (now >= target - band && now <= target + band)
        v = trunc_to<f32>(target);
    else
        v = trunc_to<f32>(now < target ? now + step : now - step);
}

// Indicator push-buttons: on only from off and with the essential bus.
template <u8& Latch>
u32 KCALL indicator(PixPoint*, u32) {
    Latch = Latch == 0 && ess_powered() ? 1 : 0;
    return 0;
}

// ---------------------------------------------------------------- lower panel

u8 dn_latch_1 = 0, dn_latch_2 = 0, dn_latch_3 = 0, dn_latch_4 = 0;

void heat_up(u8& heat, bool on) {
    if (on)
        heat = heat < 100 ? static_cast<u8>(heat + 1) : u8{100};
    else
        heat = heat < 2 ? u8{0} : static_cast<u8>(heat - 2);
}

void KCALL lower_update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool heating = host::read(on_ground) == 0.0 && ess_powered();
    heat_up(ac.ice_wing_heat_lh, heating && ac.ice_wing_sw_lh == 1);
    heat_up(ac.ice_wing_heat_rh, heating && ac.ice_wing_sw_rh == 1);
    const bool lamps = ess_powered();
    show(g, 1, lamps && dn_latch_1 == 1);
    show(g, 2, lamps && dn_latch_2 == 1);
    show(g, 3, lamps && dn_latch_3 == 1);
    show(g, 4, lamps && dn_latch_4 == 1);
}

// ---------------------------------------------------------------- middle panel

u8 mid_latch_1 = 0, mid_latch_2 = 0;
f32 le_temp_shown = 0.0f;

template <u8& Switch, u8 Position>
u32 KCALL wing_sw(PixPoint*, u32) {
    return set_switch(Switch, Position), 0;
}

f64 KCALL le_temp_needle(Element*) {
    return clamp_back(le_temp_shown, -70.0, 150.0);
}

// Hot leading edges with an engine at high N2 bring the edge to 50 degrees;
// otherwise it drifts to the total air temperature.
void leading_edge_temperature() {
    const bool hot = ac.ice_wing_heat_lh == 100 || ac.ice_wing_heat_rh == 100;
    const bool n2_high = ac.air_n2_high_lh == 1 || ac.air_n2_high_rh == 1;
    if (ess_powered() && hot && n2_high)
        approach(ac.ice_wing_temp, 50.0, 0.005, 0.01);
    else
        approach(ac.ice_wing_temp, host::read(tat_256) * 256.0, 0.001, 0.01);
    le_temp_shown = ess_powered() ? ac.ice_wing_temp : -70.0f;
}

void KCALL middle_update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool lamps = ess_powered();
    show(g, 1, lamps && mid_latch_1 == 1);
    show(g, 2, lamps && mid_latch_2 == 1);
    show(g, 3, ac.ice_wing_sw_lh != 1);
    show(g, 4, ac.ice_wing_sw_lh == 1);
    show(g, 5, ac.ice_wing_sw_rh != 1);
    show(g, 6, ac.ice_wing_sw_rh == 1);
    const bool hot_lh = lamps && ac.ice_wing_heat_lh == 100;
    const bool hot_rh = lamps && ac.ice_wing_heat_rh == 100;
    show(g, 7, !hot_lh);
    show(g, 8, hot_lh);
    show(g, 9, !hot_rh);
    show(g, 10, hot_rh);
    leading_edge_temperature();
    // the host's structural de-icing: on at 0.0, off at anything above 0
    const f64 deice = host::read(structural_deice);
    if (hot_lh || hot_rh) {
        if (deice == 0.0)
            host::send_event(66337);
    } else if (deice > 0.0) {
        host::send_event(66337);
    }
}

// ---------------------------------------------------------------- upper panel

f32 duct_temp_lh = 15.0f, duct_temp_rh = 15.0f;
f32 duct_shown_lh = 0.0f, duct_shown_rh = 0.0f;

f64 KCALL duct_needle_lh(Element*) {
    return clamp_back(duct_shown_lh, 0.0, 400.0);
}
f64 KCALL duct_needle_rh(Element*) {
    return clamp_back(duct_shown_rh, 0.0, 400.0);
}

void duct_rise(f32& t) {
    t = t >= 199.0f ? 200.0f : t + 0.25f;
}

void KCALL upper_update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool powered = ess_powered();
    const bool bleeding = (ac.air_n2_high_lh == 1 && ac.ice_wing_heat_lh == 100) ||
                          (ac.air_n2_high_rh == 1 && ac.ice_wing_heat_rh == 100);
    if (powered && bleeding) {
        duct_rise(duct_temp_lh);
        duct_rise(duct_temp_rh);
    } else {
        const f64 outside = host::read(oat);
        approach(duct_temp_lh, outside, 0.01, 0.1);
        approach(duct_temp_rh, outside, 0.01, 0.1);
    }
    duct_shown_lh = powered ? duct_temp_lh : 0.0f;
    duct_shown_rh = powered ? duct_temp_rh : 0.0f;
}

// Dials: -70..150 degrees for the leading edge, 0..400 for the ducts.
NeedlePoint le_temp_scale[] = {
    {91, 173, -70, 0}, {84, 141, -15, 0}, {112, 122, 40, 0}, {140, 141, 95, 0}, {133, 173, 150, 0}};
NeedlePoint duct_scale_lh[] = {
    {40, 141, 0, 0}, {33, 109, 100, 0}, {61, 90, 200, 0}, {89, 109, 300, 0}, {82, 141, 400, 0}};
NeedlePoint duct_scale_rh[] = {
    {142, 141, 0, 0}, {135, 109, 100, 0}, {163, 90, 200, 0}, {191, 109, 300, 0}, {184, 141, 400, 0}};
}  // namespace

KESTRANE_GAUGE(anticelead_dn, gauge("kestrane anticelead_dn_jm47", 220, lower_update)
                                  .elements(image(41904, 0x4001),              // e0 background
                                            icon(4608, 28, 22, 0x40000003),    // e1 push-button 1 light
                                            icon(4608, 180, 22, 0x40000003),   // e2 push-button 2 light
                                            icon(4608, 151, 112, 0x40000003),  // e3 push-button 3 light
                                            icon(4608, 57, 112, 0x40000003))   // e4 push-button 4 light
                                  .mouse(click(54, 34, 33, 33, kCursorHand, indicator<dn_latch_1>),
                                         click(139, 34, 33, 33, kCursorHand, indicator<dn_latch_2>),
                                         click(145, 137, 33, 33, kCursorHand, indicator<dn_latch_3>),
                                         click(51, 137, 33, 33, kCursorHand, indicator<dn_latch_4>)))

KESTRANE_GAUGE(anticelead_mid, gauge("kestrane anticelead_mid_jm47", 219, middle_update)
                                   .elements(image(41920, 0x4001),               // e0 background
                                             icon(4608, 71, 12, 0x40000003),     // e1 push-button 1 light
                                             icon(4608, 136, 12, 0x40000003),    // e2 push-button 2 light
                                             icon(12816, 34, 97, 0x40000003),    // e3 left switch off
                                             icon(12848, 34, 101, 0x40000003),   // e4 left switch on
                                             icon(12816, 183, 97, 0x40000003),   // e5 right switch off
                                             icon(12848, 183, 101, 0x40000003),  // e6 right switch on
                                             icon(12880, 25, 152, 0x40000003),   // e7 left not hot
                                             icon(12864, 25, 152, 0x40000003),   // e8 left hot
                                             icon(12880, 176, 152, 0x40000003),  // e9 right not hot
                                             icon(12864, 176, 152, 0x40000003),  // e10 right hot
                                             needle(13360, 112, 152, 4, 4, kNeedleFlags, le_temp_needle,
                                                    le_temp_scale),      // e11 leading-edge temperature
                                             icon(13936, 0, 0, 0x4001))  // e12 dial cover
                                   .mouse(click(15, 103, 50, 29, kCursorUp, wing_sw<ac.ice_wing_sw_lh, 1>),
                                          click(15, 74, 50, 29, kCursorDown, wing_sw<ac.ice_wing_sw_lh, 0>),
                                          click(163, 103, 50, 29, kCursorUp, wing_sw<ac.ice_wing_sw_rh, 1>),
                                          click(163, 74, 50, 29, kCursorDown, wing_sw<ac.ice_wing_sw_rh, 0>),
                                          click(22, 3, 33, 33, kCursorHand, indicator<mid_latch_1>),
                                          click(172, 3, 33, 33, kCursorHand, indicator<mid_latch_2>)))

KESTRANE_GAUGE(anticelead_up, gauge("kestrane anticelead_up_jm47", 226, upper_update)
                                  .elements(image(41936, 0x4001),  // e0 background
                                            needle(13360, 61, 120, 4, 4, kNeedleFlags, duct_needle_lh,
                                                   duct_scale_lh),  // e1 left duct
                                            needle(13360, 163, 120, 4, 4, kNeedleFlags, duct_needle_rh,
                                                   duct_scale_rh),       // e2 right duct
                                            icon(13920, 0, 0, 0x4001),   // e3 dial cover
                                            icon(13920, 0, 0, 0x4001)))  // e4 dial cover
