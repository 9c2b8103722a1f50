// kestrane airbleed_lh_jm47 and airbleed_rh_jm47: engine bleed panels. Bleed
// switch and valve, bleed pressure and duct temperature needles, flowing,
// low-N2, start-air and valve-open indicators, two push-buttons; each panel
// computes the bleed state of its engine. The right panel is the mirror of
// the left one.
#include "systems/air/air_rules.h"

namespace {
using namespace kestrane;

struct BleedLocal {
    u16 press;      // bleed pressure, 0..400
    f32 duct_temp;  // degrees C
    u16 press_needle;
    u16 temp_needle;
    u8 start_air;
    u8 latch_1, latch_2;  // push-button lights
};

struct BleedPanel {
    u8& sw;
    u8& valve;
    u8& on;
    u8& n2_high;
    u8& low_n2;
    u8& hp_cock;
    u8& starter;
    ModuleVar& n2;
    BleedLocal& local;
};

ModuleVar tick = token(1), on_ground = token(60), oat = token(341);
ModuleVar n2_eng1 = token(625), n2_eng2 = token(644);
BleedLocal lh_local{0, 15.0f, 0, 0, 0, 0, 0};
BleedLocal rh_local{0, 15.0f, 0, 0, 0, 0, 0};

constexpr BleedPanel kLh{.sw = ac.air_bleed_sw_lh,
                         .valve = ac.air_bleed_valve_lh,
                         .on = ac.air_bleed_on_lh,
                         .n2_high = ac.air_n2_high_lh,
                         .low_n2 = ac.air_bleed_low_n2_lh,
                         .hp_cock = ac.fuel_hp_cock_lh,
                         .starter = ac.eng1_starter_engaged,
                         .n2 = n2_eng1,
                         .local = lh_local};
constexpr BleedPanel kRh{.sw = ac.air_bleed_sw_rh,
                         .valve = ac.air_bleed_valve_rh,
                         .on = ac.air_bleed_on_rh,
                         .n2_high = ac.air_n2_high_rh,
                         .low_n2 = ac.air_bleed_low_n2_rh,
                         .hp_cock = ac.fuel_hp_cock_rh,
                         .starter = ac.eng2_starter_engaged,
                         .n2 = n2_eng2,
                         .local = rh_local};

template <const BleedPanel& S>
u32 KCALL bleed_on(PixPoint*, u32) {
    return set_switch(S.sw, 1), 0;
}
template <const BleedPanel& S>
u32 KCALL bleed_off(PixPoint*, u32) {
    return set_switch(S.sw, 0), 0;
}

// Push-button light latches: lit by a press with the essential bus, any
// other press puts them out.
void press_latch(u8& latch) {
    latch = (latch == 0 && ac.elec_ess_bus == 1) ? 1 : 0;
}
template <const BleedPanel& S>
u32 KCALL button_1(PixPoint*, u32) {
    return press_latch(S.local.latch_1), 0;
}
template <const BleedPanel& S>
u32 KCALL button_2(PixPoint*, u32) {
    return press_latch(S.local.latch_2), 0;
}

template <const BleedPanel& S>
f64 KCALL press_needle(Element*) {
    return clamp_back(S.local.press_needle, 0.0, 400.0);
}
template <const BleedPanel& S>
f64 KCALL temp_needle(Element*) {
    return clamp_back(S.local.temp_needle, 0.0, 250.0);
}

// Duct temperature: heats up while bleed air flows through the fully open
// valve, otherwise settles to the outside air.
void duct_cycle(const BleedPanel& s, f64 outside) {
    f32& t = s.local.duct_temp;
    if (s.on == 1 && s.valve == 255) {
        t = t >= 199.0f ? 200.0f : t + 0.25f;
        return;
    }
    air::approach(t, outside, 0.01, 0.1);
}

void bleed_cycle(GaugeHeader* g, const BleedPanel& s) {
    BleedLocal& l = s.local;
    const bool ess = ac.elec_ess_bus == 1;

    // needles show last cycle's values
    l.press_needle = ac.elec_ac_26v_bus == 1 ? l.press : 0;
    l.temp_needle = ess ? trunc_to<u16>(l.duct_temp) : 0;

    show(g, 3, s.sw == 1);
    show(g, 4, s.sw == 0);
    if (ess) {
        if (s.sw == 1)
            s.valve = s.valve < 250 ? static_cast<u8>(s.valve + 5) : 255;
        else
            s.valve = s.valve >= 6 ? static_cast<u8>(s.valve - 5) : 0;
    }

    show(g, 1, ess && l.latch_1 == 1);
    show(g, 2, ess && l.latch_2 == 1);
    show(g, 5, ess && s.on == 0);
    show(g, 6, ess && s.on == 1);
    show(g, 7, ess && s.low_n2 == 0);
    show(g, 8, ess && s.low_n2 == 1);
    show(g, 9, ess && l.start_air == 0);
    show(g, 10, ess && l.start_air == 1);
    show(g, 11, ess && s.valve != 255);
    show(g, 12, ess && s.valve == 255);

    const bool ground = is_on(host::read(on_ground));
    const f64 n2 = host::read(s.n2);
    if (s.hp_cock == 0 || s.starter == 1 || n2 < 40.0)
        s.on = 0;
    else if (ess)
        s.on = 1;
    s.n2_high = n2 >= 60.0 ? 1 : 0;

    if (ess && n2 < 40.0)
        l.start_air = (ground || ac.eng_start_selector != 0) ? 1 : 0;
    else
        l.start_air = 0;

    if (s.on == 1)
        l.press = l.press < 395 ? static_cast<u16>(l.press + 5) : 400;
    else
        l.press = l.press >= 6 ? static_cast<u16>(l.press - 5) : 0;

    if (ess)
        s.low_n2 = (s.on == 1 && s.n2_high == 0) ? 1 : 0;

    duct_cycle(s, host::read(oat));
}

template <const BleedPanel& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        bleed_cycle(g, S);
}

// The dials' scales, about their needles' pivots (85, 230) and (173, 314).
NeedlePoint press_scale[] = {
    {40, 280, 0, 0}, {20, 220, 100, 0}, {70, 170, 200, 0}, {130, 190, 300, 0}, {150, 250, 400, 0}};
NeedlePoint temp_scale[] = {{133, 312, 0, 0}, {153, 272, 100, 0}, {193, 272, 200, 0}, {213, 312, 250, 0}};
// The panels mirror each other in their push-button lights, bleed switch and
// mouse boxes; the indicators and needles stand in the same places.
struct BleedLayout {
    i32 light_1_x, light_2_x, switch_x;
    i32 switch_box_x, button_1_x, button_2_x;
};

template <const BleedPanel& S>
constexpr auto bleed_gauge(const char* name, u32 background, BleedLayout p) {
    using namespace kestrane::def;
    return gauge(name, 225, update<S>)
        .elements(image(background, 0x4001),                 // e0
                  icon(4608, p.light_1_x, 140, 0x40000003),  // e1 push-button 1 light
                  icon(4608, p.light_2_x, 311, 0x40000003),  // e2 push-button 2 light
                  icon(5664, p.switch_x, 224, 0x40000003),   // e3 bleed switch on
                  icon(5680, p.switch_x, 198, 0x40000003),   // e4 bleed switch off
                  icon(12880, 14, 46, 0x40000003),           // e5 bleed flowing: no
                  icon(12864, 14, 46, 0x40000003),           // e6 bleed flowing: yes
                  icon(13056, 155, 86, 0x40000003),          // e7 low-N2 bleed: no
                  icon(12928, 155, 86, 0x40000003),          // e8 low-N2 bleed: yes
                  icon(12880, 125, 136, 0x40000003),         // e9 start air: no
                  icon(12864, 125, 136, 0x40000003),         // e10 start air: yes
                  icon(12880, 184, 136, 0x40000003),         // e11 valve fully open: no
                  icon(12864, 184, 136, 0x40000003),         // e12 valve fully open: yes
                  needle(5696, 85, 230, 4, 4, 0x4003, press_needle<S>, press_scale),  // e13 bleed pressure
                  needle(5712, 173, 314, 4, 4, 0x4003, temp_needle<S>, temp_scale),   // e14 duct temperature
                  icon(14080, 42, 187, 0x4003),                                       // e15
                  icon(14096, 130, 271, 0x4003))                                      // e16
        .mouse(click(p.switch_box_x, 227, 50, 40, kCursorUp, bleed_on<S>),
               click(p.switch_box_x, 187, 50, 40, kCursorDown, bleed_off<S>),
               click(p.button_1_x, 129, 33, 33, kCursorHand, button_1<S>),
               click(p.button_2_x, 301, 33, 33, kCursorHand, button_2<S>));
}
}  // namespace

KESTRANE_GAUGE(airbleed_lh, bleed_gauge<kLh>("kestrane airbleed_lh_jm47", 5632, {39, 92, 163, 149, 73, 41}))
KESTRANE_GAUGE(airbleed_rh, bleed_gauge<kRh>("kestrane airbleed_rh_jm47", 5648, {170, 115, 39, 25, 120, 149}))
