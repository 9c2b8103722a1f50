// kestrane hydrau_level_jm47: reservoir level gauge, green (left) and blue
// (right). The green reservoir gives fluid to the gear legs as they extend;
// with a leak it loses some with each degree of flap extension.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar gear_leg = token(333), flap_angle = token(907), airbrake_lh = token(326);

u32 leak_base = 60;           // what is left in the reservoir, gear up
i32 leak_tick;                // flap angle at the last loss
u16 shown_green, shown_blue;  // needle copies, frozen without 26 V AC

f64 KCALL green_needle(Element*) {
    return clamp_back(shown_green, 0, 70);
}
f64 KCALL blue_needle(Element*) {
    return clamp_back(shown_blue, 0, 70);
}

NeedlePoint green_scale[] = {
    {9, 92, 0, 0}, {11, 65, 20, 0}, {30, 56, 35, 0}, {49, 65, 50, 0}, {51, 92, 70, 0}};
NeedlePoint blue_scale[] = {
    {63, 92, 0, 0}, {65, 65, 20, 0}, {84, 56, 35, 0}, {103, 65, 50, 0}, {105, 92, 70, 0}};

// Fluid taken back from the gear: up to 10 more with the legs extended.
f64 with_gear(f64 base, f64 gear) {
    return base + gear * 0.0001 * 83 * 0.1;
}

u16 level_sealed(f64 gear) {
    if (ac.hyd_green_fluid_loss)
        return 15;
    if (gear < 3000)
        return 50;
    if (gear > 12000)
        return 60;
    return trunc_to<u16>(with_gear(50, gear));
}

u16 level_leaking(f64 gear) {
    const f64 flaps = host::read(flap_angle);
    if (flaps == 0.0)
        leak_tick = 0;
    if (flaps > leak_tick + 1.0) {
        leak_base = leak_base < 3 ? 0 : leak_base - 3;
        leak_tick = trunc_to<i32>(flaps);
    }
    if (host::read(airbrake_lh) > 16000)
        return 15;
    if (leak_base < 15)
        return 15;
    if (gear < 3000)
        return static_cast<u16>(leak_base);
    if (leak_base >= 50)
        return 60;
    if (gear > 12000)
        return static_cast<u16>(leak_base + 10);
    return trunc_to<u16>(with_gear(leak_base, gear));
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 gear = host::read(gear_leg);
    if (ac.hyd_green_leak) {
        ac.hyd_green_level = level_leaking(gear);
    } else {
        leak_base = 60;
        ac.hyd_green_level = level_sealed(gear);
    }
    if (ac.elec_ac_26v_bus == 1) {
        shown_green = ac.hyd_green_level;
        shown_blue = ac.hyd_blue_level;
    }
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(hydrau_level,
    gauge("kestrane hydrau_level_jm47", 114, update)
        .elements(image(26704, 0x4001),                                            // e0 background
                  needle(31632, 30, 80, 3, 22, 0x4003, green_needle, green_scale),  // e1 green level
                  needle(31648, 84, 80, 3, 22, 0x4003, blue_needle, blue_scale)))   // e2 blue level
// clang-format on
