// kestrane elec_mas_sw_jm47: electrical master switch (OFF, GROUND POWER,
// BATTERY) and the ground power lamp. Its callback decides whether a ground
// power unit can stay plugged in and tells the other modules of the aircraft.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

ModuleVar height = token(614), on_ground = token(60);
ModuleVar n2_eng1 = token(625), n2_eng2 = token(644);
ModuleVar speed_a = token(551), speed_b = token(552);

constexpr const char* kExtPower = "airport_extpwr_connected";

u8 lamp_test;  // spring counter of the lamp test button

u32 KCALL to_ground(PixPoint*, u32) {
    set_switch(ac.elec_master_sw, 1);
    return 0;
}
u32 KCALL to_off(PixPoint*, u32) {
    set_switch(ac.elec_master_sw, 0);
    return 0;
}
u32 KCALL to_battery(PixPoint*, u32) {
    set_switch(ac.elec_master_sw, 2);
    return 0;
}
u32 KCALL test_lamp(PixPoint*, u32) {
    spring_press(lamp_test);
    return 0;
}

void ground_power() {
    const bool grounded = host::read(height) <= 2.0 || is_on(host::read(on_ground));
    const bool engine_slow = host::read(n2_eng1) < 40.0 || host::read(n2_eng2) < 40.0;
    const f64 speed = host::read(speed_a) + host::read(speed_b);
    const bool stopped = speed >= -2.0 && speed <= 2.0;
    ac.elec_gndpwr_available = grounded && engine_slow && stopped;
    if (ac.elec_gndpwr_available == 1 && ac.elec_gndpwr_plug == 1) {
        ac.elec_gndpwr_connected = 1;
    } else {
        // the plug falls off when the aircraft moves or both engines run
        ac.elec_gndpwr_connected = 0;
        ac.elec_gndpwr_plug = 0;
    }
    ac.elec_dc_gndpwr_on = ac.elec_master_sw == 1 && ac.elec_gndpwr_connected == 1;

    if (grounded) {
        const f64 published = host::named_get(kExtPower);
        if (ac.elec_gndpwr_connected == 1 && published == 0.0)
            host::named_set(kExtPower, 1.0);
        else if (ac.elec_gndpwr_connected == 0 && published > 0.0)
            host::named_set(kExtPower, 0.0);
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    ground_power();
    show(g, 1, ac.elec_master_sw == 1);
    show(g, 2, ac.elec_master_sw == 0);
    show(g, 3, ac.elec_master_sw == 2);
    show(g, 4, ac.elec_gndpwr_connected == 1 || (lamp_test > 0 && ac.elec_ess_bus == 1));
    spring_release(lamp_test);
}
}  // namespace

KESTRANE_GAUGE(elec_mas_sw, gauge("kestrane elec_mas_sw_jm47", 128, update)
                                .elements(image(26272, 0x4001),                  // e0 background
                                          icon(art(17, 1), 0, 0, 0x40000003),    // e1 switch right: GROUND POWER
                                          icon(art(17, 2), 0, 0, 0x40000003),    // e2 switch centre: master at 0
                                          icon(art(17, 3), 0, 0, 0x40000003),    // e3 switch left: BATTERY
                                          icon(art(17, 4), 85, 35, 0x40000003))  // e4 ground power lamp
                                .mouse(click(45, 0, 23, 40, kCursorHand, to_ground),
                                       click(22, 0, 23, 40, kCursorHand, to_off),
                                       click(0, 0, 22, 40, kCursorHand, to_battery),
                                       repeat(85, 35, 25, 25, kCursorHand, test_lamp)))
