// kestrane deice_eng_lh_jm47 and deice_eng_rh_jm47: engine de-icing switches
// A and B of engines 1 and 2. Each circuit heats up over 100 cycles on the
// essential bus; circuit A, once hot and with bleed air, switches the host's
// engine anti-ice on. Both engines use one host event and each watches its own
// token.
#include "frame/follow.h"

namespace {
using namespace kestrane;

struct DeiceEngine {
    u8& sw_a;
    u8& sw_b;
    u8& heat_a;
    u8& heat_b;
    u8& bleed_on;
    u8& n2_high;
    u8& bleed_low_n2;
    ModuleVar& anti_ice;
};

ModuleVar anti_ice_1 = token(883), anti_ice_2 = token(884);

constexpr DeiceEngine kEngine1{ac.ice_eng_sw_a_lh,     ac.ice_eng_sw_b_lh, ac.ice_eng_a_lh,
                               ac.ice_eng_b_lh,        ac.air_bleed_on_lh, ac.air_n2_high_lh,
                               ac.air_bleed_low_n2_lh, anti_ice_1};
constexpr DeiceEngine kEngine2{ac.ice_eng_sw_a_rh,     ac.ice_eng_sw_b_rh, ac.ice_eng_a_rh,
                               ac.ice_eng_b_rh,        ac.air_bleed_on_rh, ac.air_n2_high_rh,
                               ac.air_bleed_low_n2_rh, anti_ice_2};

constexpr u32 kEngineAntiIce = 66488;  // value 1 on, 0 off

template <const DeiceEngine& S, u8 Position>
u32 KCALL switch_a(PixPoint*, u32) {
    return set_switch(S.sw_a, Position), 0;
}
template <const DeiceEngine& S, u8 Position>
u32 KCALL switch_b(PixPoint*, u32) {
    return set_switch(S.sw_b, Position), 0;
}

// A circuit on the essential bus heats up by 1 a cycle to 100 and cools by 2
// when switched off; without the bus it keeps its heat.
void heat_up(u8& heat, bool on) {
    if (ac.elec_ess_bus != 1)
        return;
    if (on)
        heat = heat < 100 ? static_cast<u8>(heat + 1) : u8{100};
    else
        heat = heat < 3 ? u8{0} : static_cast<u8>(heat - 2);
}

void deice_cycle(GaugeHeader* g, const DeiceEngine& s) {
    const bool a_on = s.sw_a == 1;
    const bool b_on = s.sw_b == 1;
    const bool powered = ac.elec_ess_bus == 1;
    show(g, 1, !a_on);
    show(g, 2, a_on);
    show(g, 3, !b_on);
    show(g, 4, b_on);
    heat_up(s.heat_a, a_on);
    heat_up(s.heat_b, b_on);
    const bool bleed = s.bleed_on == 1 || (s.n2_high == 1 && s.bleed_low_n2 == 1);
    const bool active = a_on && powered && s.heat_a == 100 && bleed;
    follow(s.anti_ice, active, kEngineAntiIce, kEngineAntiIce, 1, 0);
    show(g, 5, powered && s.heat_b == 0);
    show(g, 6, powered && s.heat_b == 100);
    show(g, 7, powered && s.heat_a == 100);
}

template <const DeiceEngine& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        deice_cycle(g, S);
}

// Both panels share one layout; only the name and the background differ.
template <const DeiceEngine& S>
constexpr auto deice_gauge(const char* name, u32 background) {
    using namespace kestrane::def;
    return gauge(name, 114, update<S>)
        .elements(image(background, 0x4001),        // e0 background
                  icon(10064, 86, 60, 0x40000003),  // e1 switch A off
                  icon(10048, 86, 72, 0x40000003),  // e2 switch A on
                  icon(10064, 86, 14, 0x40000003),  // e3 switch B off
                  icon(10048, 86, 28, 0x40000003),  // e4 switch B on
                  icon(10240, 28, 26, 0x40000003),  // e5 B indicator cold
                  icon(10256, 28, 26, 0x40000003),  // e6 B indicator hot
                  icon(10256, 28, 69, 0x40000003))  // e7 A light
        .mouse(click(77, 74, 32, 21, kCursorUp, switch_a<S, 1>),
               click(77, 53, 32, 21, kCursorDown, switch_a<S, 0>),
               click(77, 29, 32, 21, kCursorUp, switch_b<S, 1>),
               click(77, 8, 32, 21, kCursorDown, switch_b<S, 0>));
}
}  // namespace

KESTRANE_GAUGE(deice_eng_lh, deice_gauge<kEngine1>("kestrane deice_eng_lh_jm47", 41488))
KESTRANE_GAUGE(deice_eng_rh, deice_gauge<kEngine2>("kestrane deice_eng_rh_jm47", 41504))
