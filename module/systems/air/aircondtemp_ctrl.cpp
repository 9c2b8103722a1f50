// kestrane aircondtemp_ctrl_jm47: air-conditioning controller. Cockpit and
// cabin mode switches (automatic, centre, momentary colder and warmer) and
// four push-buttons; runs the duct and zone temperature model of both zones.
#include "systems/air/air_rules.h"

namespace {
using namespace kestrane;

constexpr u8 kAuto = 100;
constexpr u8 kCentre = 0;

struct Zone {
    u8 mode_sw;  // 100 automatic, 0 centre, 1..12 momentary, springing back
    u8 latch;    // last manual direction: colder or warmer command
    u8 colder_cmd, warmer_cmd;
    u8& selector;
    f32& set;
    f32& temp;
    f32& duct;
    int first_image;  // automatic, centre, colder, warmer
};

ModuleVar oat = token(341);
u8 lights[4] = {};

// At load: automatic, both latches on their colder side.
Zone cockpit{.mode_sw = kAuto,
             .latch = 2,
             .colder_cmd = 2,
             .warmer_cmd = 3,
             .selector = ac.air_cond_sel_ckpt,
             .set = ac.air_cond_set_ckpt,
             .temp = ac.air_cond_temp_ckpt,
             .duct = ac.air_duct_temp_ckpt,
             .first_image = 1};
Zone cabin{.mode_sw = kAuto,
           .latch = 4,
           .colder_cmd = 4,
           .warmer_cmd = 5,
           .selector = ac.air_cond_sel_cabin,
           .set = ac.air_cond_set_cabin,
           .temp = ac.air_cond_temp_cabin,
           .duct = ac.air_duct_temp_cabin,
           .first_image = 5};

template <Zone& Z>
u32 KCALL to_auto(PixPoint*, u32) {
    return set_switch(Z.mode_sw, kAuto), 0;
}
template <Zone& Z>
u32 KCALL to_centre(PixPoint*, u32) {
    return set_switch(Z.mode_sw, kCentre), 0;
}

// Momentary side: the first press throws the switch (CLICK), holding it
// keeps it there.
void momentary(Zone& z, u8 cmd) {
    if (z.mode_sw == kCentre || z.mode_sw == kAuto) {
        z.mode_sw = 10;
        sound::click();
    } else if (z.mode_sw >= 1 && z.mode_sw <= 10) {
        z.mode_sw = static_cast<u8>(z.mode_sw + 2);
    }
    ac.air_cond_manual_cmd = cmd;
}
template <Zone& Z>
u32 KCALL to_colder(PixPoint*, u32) {
    return momentary(Z, Z.colder_cmd), 0;
}
template <Zone& Z>
u32 KCALL to_warmer(PixPoint*, u32) {
    return momentary(Z, Z.warmer_cmd), 0;
}

template <int N>
u32 KCALL button(PixPoint*, u32) {
    lights[N] = lights[N] == 0 ? 1 : 0;
    return 0;
}

void switch_cycle(GaugeHeader* g, Zone& z) {
    if (z.mode_sw != kCentre && z.mode_sw != kAuto)
        --z.mode_sw;
    const bool momentary_side = z.mode_sw != kCentre && z.mode_sw != kAuto;
    if (momentary_side)
        z.latch = ac.air_cond_manual_cmd == z.colder_cmd ? z.colder_cmd : z.warmer_cmd;
    show(g, z.first_image, z.mode_sw == kAuto);
    show(g, z.first_image + 1, z.mode_sw == kCentre);
    show(g, z.first_image + 2, momentary_side && z.latch == z.colder_cmd);
    show(g, z.first_image + 3, momentary_side && z.latch == z.warmer_cmd);
}

void zone_cycle(Zone& z) {
    z.set = trunc_to<f32>(z.selector * 0.1 + z.selector * 0.1 + 16.0);
    if (z.mode_sw == kAuto) {
        air::approach(z.temp, z.set, 0.001, 0.1);
        air::approach(z.duct, (static_cast<f64>(z.set) - z.temp) + 35.0, 0.5, 1.0);
    } else if (z.latch == z.colder_cmd) {
        z.temp = trunc_to<f32>(static_cast<f64>(z.temp) - 0.0025);
        air::approach(z.duct, 15.0, 0.5, 1.0);
    } else {
        z.temp = trunc_to<f32>(static_cast<f64>(z.temp) + 0.0025);
        air::approach(z.duct, 55.0, 0.5, 1.0);
    }
}

void update_cycle(GaugeHeader* g) {
    switch_cycle(g, cockpit);
    switch_cycle(g, cabin);
    for (int i = 0; i < 4; ++i)
        show(g, 9 + i, lights[i] == 1 && ac.elec_ess_bus == 1);

    const f64 outside = host::read(oat);
    if (air::bleed_supply() && ac.elec_ess_bus == 1 && ac.elec_ac_26v_bus == 1) {
        zone_cycle(cabin);
        zone_cycle(cockpit);
    } else {
        air::approach(ac.air_cond_temp_cabin, outside, 0.001, 0.1);
        air::approach(ac.air_cond_temp_ckpt, outside, 0.001, 0.1);
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        update_cycle(g);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(aircondtemp_ctrl,
    gauge("kestrane aircondtemp_ctrl_jm47", 208, update)
        .elements(image(13312, 0x4001),               // e0
                  icon(12848, 50, 196, 0x40000003),   // e1 cockpit automatic
                  icon(12816, 50, 191, 0x40000003),   // e2 cockpit centre
                  icon(13168, 42, 181, 0x40000003),   // e3 cockpit colder
                  icon(13184, 52, 181, 0x40000003),   // e4 cockpit warmer
                  icon(12848, 144, 196, 0x40000003),  // e5 cabin automatic
                  icon(12816, 144, 191, 0x40000003),  // e6 cabin centre
                  icon(13168, 136, 181, 0x40000003),  // e7 cabin colder
                  icon(13184, 146, 181, 0x40000003),  // e8 cabin warmer
                  icon(4608, 21, 74, 0x40000003),     // e9 light
                  icon(4608, 62, 74, 0x40000003),     // e10 light
                  icon(4608, 167, 74, 0x40000003),    // e11 light
                  icon(4608, 126, 74, 0x40000003))    // e12 light
        .mouse(click(37, 209, 37, 26, kCursorUp, to_auto<cockpit>),
               click(37, 186, 37, 20, kCursorHand, to_centre<cockpit>),
               repeat(18, 160, 37, 26, kCursorDown, to_colder<cockpit>),
               repeat(55, 160, 37, 26, kCursorUp, to_warmer<cockpit>),
               click(132, 209, 37, 26, kCursorUp, to_auto<cabin>),
               click(132, 186, 37, 20, kCursorHand, to_centre<cabin>),
               repeat(113, 160, 37, 26, kCursorDown, to_colder<cabin>),
               repeat(150, 160, 37, 26, kCursorUp, to_warmer<cabin>),
               click(11, 97, 33, 33, kCursorHand, button<0>),
               click(53, 97, 33, 33, kCursorHand, button<1>),
               click(158, 97, 33, 33, kCursorHand, button<2>),
               click(116, 97, 33, 33, kCursorHand, button<3>)))
// clang-format on
