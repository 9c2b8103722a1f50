// kestrane landlights_jm47: landing-light extension switch and landing-light
// switch. A click holds the extension switch over for 50 cycles, extending or
// retracting the lights on DC bus 2; the host's landing lights come on only
// once extended. Switching the lights on extends them, off retracts them.
#include "frame/follow.h"

namespace {
using namespace kestrane;

ModuleVar landing_lights = token(14);

constexpr i8 kExtend = 100, kRetract = -100;

// Each handler clicks for its own field only.
void set_extension(i8 position, bool own) {
    if (ac.light_land_ext_sw == position)
        return;
    ac.light_land_ext_sw = position;
    if (own)
        sound::click();
}
void set_lights(u8 position, bool own) {
    if (own)
        set_switch(ac.light_land_sw, position);
    else
        ac.light_land_sw = position;
}

u32 KCALL retract(PixPoint*, u32) {
    set_extension(kRetract, true);
    set_lights(0, false);
    return 0;
}
u32 KCALL extend(PixPoint*, u32) {
    set_extension(kExtend, true);
    return 0;
}
u32 KCALL lights_on(PixPoint*, u32) {
    set_lights(1, true);
    set_extension(kExtend, false);
    return 0;
}
u32 KCALL lights_off(PixPoint*, u32) {
    set_lights(0, true);
    set_extension(kRetract, false);
    return 0;
}

// The extension switch springs back by 2 a cycle.
void extension_cycle(GaugeHeader* g) {
    i8& sw = ac.light_land_ext_sw;
    if (sw > 1)
        sw = static_cast<i8>(sw - 2);
    else if (sw < -1)
        sw = static_cast<i8>(sw + 2);
    else
        sw = 0;
    for (int side = 0; side < 2; ++side) {
        show(g, 1 + 3 * side, sw < 0);
        show(g, 2 + 3 * side, sw == 0);
        show(g, 3 + 3 * side, sw > 0);
    }
    if (ac.elec_dc_bus_2 == 1 && sw != 0)
        ac.light_land_extended = sw > 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    extension_cycle(g);
    const bool on = ac.light_land_sw == 1;
    show(g, 7, !on);
    show(g, 8, on);
    show(g, 9, !on);
    show(g, 10, on);
    const bool lit = on && ac.elec_dc_bus_2 == 1 && ac.light_land_extended == 1;
    follow(landing_lights, lit, 66059, 66060);
}
}  // namespace

KESTRANE_GAUGE(landlights, gauge("kestrane landlights_jm47", 205, update)
                               .elements(image(41568, 0x4001),              // e0 background
                                         icon(10064, 130, 11, 0x40000003),  // e1 left extension, retracting
                                         icon(10080, 130, 23, 0x40000003),  // e2 left extension, centre
                                         icon(10048, 130, 22, 0x40000003),  // e3 left extension, extending
                                         icon(10064, 167, 11, 0x40000003),  // e4 right extension, retracting
                                         icon(10080, 167, 23, 0x40000003),  // e5 right extension, centre
                                         icon(10048, 167, 22, 0x40000003),  // e6 right extension, extending
                                         icon(10064, 24, 11, 0x40000003),   // e7 left light switch off
                                         icon(10048, 24, 22, 0x40000003),   // e8 left light switch on
                                         icon(10064, 61, 11, 0x40000003),   // e9 right light switch off
                                         icon(10048, 61, 22, 0x40000003))   // e10 right light switch on
                               .mouse(click(119, 6, 68, 21, kCursorDown, retract),
                                      click(119, 27, 68, 21, kCursorUp, extend),
                                      click(14, 6, 68, 21, kCursorDown, lights_off),
                                      click(14, 27, 68, 21, kCursorUp, lights_on)))
