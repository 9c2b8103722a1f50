// kestrane elec_conv_jm47: converter panel. Converters 1 and 2 run on DC
// generation, the standby converter on the essential bus; together they make
// the 115 V AC buses 1 and 2 and the 26 V instrument bus.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

// Switch positions: 0 off (middle), 1 on (up), 2 transfer or standby on (down).
u32 KCALL c_up(PixPoint*, u32) {
    return set_switch(ac.elec_conv3_sw, 1), 0;
}
u32 KCALL c_mid(PixPoint*, u32) {
    return set_switch(ac.elec_conv3_sw, 0), 0;
}
u32 KCALL c_down(PixPoint*, u32) {
    return set_switch(ac.elec_conv3_sw, 2), 0;
}
u32 KCALL a_up(PixPoint*, u32) {
    return set_switch(ac.elec_conv1_sw, 1), 0;
}
u32 KCALL a_mid(PixPoint*, u32) {
    return set_switch(ac.elec_conv1_sw, 0), 0;
}
u32 KCALL a_down(PixPoint*, u32) {
    return set_switch(ac.elec_conv1_sw, 2), 0;
}
u32 KCALL b_up(PixPoint*, u32) {
    return set_switch(ac.elec_conv2_sw, 1), 0;
}
u32 KCALL b_mid(PixPoint*, u32) {
    return set_switch(ac.elec_conv2_sw, 0), 0;
}
u32 KCALL b_down(PixPoint*, u32) {
    return set_switch(ac.elec_conv2_sw, 2), 0;
}

void converters() {
    const u8 a = ac.elec_conv1_sw, b = ac.elec_conv2_sw, c = ac.elec_conv3_sw;
    const bool dc = ac.elec_gen_bus == 1;
    const bool ess = ac.elec_ess_bus == 1;

    // Converters 1 and 2. With 1 at transfer, 2 takes over its loads
    // whatever its own switch says.
    if (a == 1) {
        ac.elec_conv1_on = dc;
        ac.elec_conv2_mode = (b == 1 || b == 2) && dc ? 1 : 0;
    } else if (a == 2) {
        ac.elec_conv1_on = 0;
        ac.elec_conv2_mode = dc ? 2 : 0;
    } else {
        ac.elec_conv1_on = 0;
        ac.elec_conv2_mode = dc && (b == 1 || b == 2) ? b : 0;
    }

    // Standby converter: on when selected, or at automatic when the loads
    // of converter 1 are left without a converter.
    if (c == 2) {
        ac.elec_conv3_mode = ess ? 2 : 0;
    } else if (c == 1 && ess) {
        if ((a == 1 && ac.elec_conv1_on == 0) || (a == 2 && ac.elec_conv2_mode == 0))
            ac.elec_conv3_mode = 1;
        else if (ac.elec_conv1_on == 1 || ac.elec_conv2_mode == 2)
            ac.elec_conv3_mode = 0;
    } else {
        ac.elec_conv3_mode = 0;
    }

    // AC buses. Converter 2 on its own loads feeds none of them.
    ac.elec_ac_26v_bus = ac.elec_conv1_on == 1 || ac.elec_conv2_mode == 2;
    ac.elec_ac_bus_1 = ac.elec_ac_26v_bus == 1 || ac.elec_conv3_mode != 0;
    ac.elec_ac_bus_2 = ac.elec_ac_bus_1;
}

// Day set e1..e9 and night set e11..e19: three images per switch, up, middle
// and down, converter 1, converter 2, standby converter.
void show_switch(GaugeHeader* g, int first, u8 pos, bool shown) {
    show(g, first, shown && pos == 1);
    show(g, first + 1, shown && pos == 0);
    show(g, first + 2, shown && pos == 2);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    converters();

    const bool night = ac.light_panel_night == 1;
    show(g, 10, night);
    for (int set = 0; set < 2; ++set) {
        const int base = set == 0 ? 1 : 11;
        const bool shown = (set == 1) == night;
        show_switch(g, base, ac.elec_conv1_sw, shown);
        show_switch(g, base + 3, ac.elec_conv2_sw, shown);
        show_switch(g, base + 6, ac.elec_conv3_sw, shown);
    }

    const bool ess = ac.elec_ess_bus == 1;
    const bool standby_idle = ac.elec_conv3_sw != 0 && ac.elec_conv3_mode == 0;
    show(g, 20, ess && ac.elec_conv1_on == 0 && (ac.elec_conv1_sw == 1 || standby_idle));
    show(g, 21, ess && ac.elec_conv2_mode == 0 && (ac.elec_conv2_sw == 1 || standby_idle));
}
}  // namespace

KESTRANE_GAUGE(elec_conv,
               gauge("kestrane elec_conv_jm47", 165, update)
                   .elements(image(26688, 0x4001),              // e0
                             icon(31504, 26, 0, 0x40000003),    // e1 converter 1 on, day
                             icon(31520, 26, 23, 0x40000003),   // e2 converter 1 off, day
                             icon(31536, 26, 46, 0x40000003),   // e3 converter 1 transfer, day
                             icon(31504, 63, 0, 0x40000003),    // e4 converter 2 on, day
                             icon(31520, 63, 23, 0x40000003),   // e5 converter 2 off, day
                             icon(31536, 63, 46, 0x40000003),   // e6 converter 2 transfer, day
                             icon(31504, 128, 0, 0x40000003),   // e7 standby automatic, day
                             icon(31520, 128, 23, 0x40000003),  // e8 standby off, day
                             icon(31536, 128, 46, 0x40000003),  // e9 standby on, day
                             icon(31552, 0, 0, 0x40000003),     // e10 night background
                             icon(31568, 26, 0, 0x40000003),    // e11 converter 1 on, night
                             icon(31584, 26, 23, 0x40000003),   // e12 converter 1 off, night
                             icon(31600, 26, 46, 0x40000003),   // e13 converter 1 transfer, night
                             icon(31568, 63, 0, 0x40000003),    // e14 converter 2 on, night
                             icon(31584, 63, 23, 0x40000003),   // e15 converter 2 off, night
                             icon(31600, 63, 46, 0x40000003),   // e16 converter 2 transfer, night
                             icon(31568, 128, 0, 0x40000003),   // e17 standby automatic, night
                             icon(31584, 128, 23, 0x40000003),  // e18 standby off, night
                             icon(31600, 128, 46, 0x40000003),  // e19 standby on, night
                             icon(31616, 30, 75, 0x40000003),   // e20 converter 1 fault
                             icon(31616, 67, 75, 0x40000003))   // e21 converter 2 fault
                   .mouse(click(128, 0, 33, 23, kCursorUp, c_up), click(128, 23, 33, 23, kCursorDown, c_mid),
                          click(128, 46, 33, 23, kCursorHand, c_down), click(26, 0, 33, 23, kCursorUp, a_up),
                          click(26, 23, 33, 23, kCursorDown, a_mid),
                          click(26, 46, 33, 23, kCursorHand, a_down), click(63, 0, 33, 23, kCursorUp, b_up),
                          click(63, 23, 33, 23, kCursorDown, b_mid),
                          click(63, 46, 33, 23, kCursorHand, b_down)))
