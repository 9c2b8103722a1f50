// kestrane navbeacon_jm47: navigation-light and beacon switches. The host's
// navigation lights follow their switch while the essential bus is powered;
// when it is lost, they and the other host lights of the cabin and panel are
// switched off. The beacon follows its switch with DC bus 1.
#include "frame/follow.h"

namespace {
using namespace kestrane;

ModuleVar nav_lights = token(619), beacon = token(368);
ModuleVar host_light_11 = token(11), host_light_620 = token(620), host_light_622 = token(622);

template <u8 Position>
u32 KCALL nav_sw(PixPoint*, u32) {
    return set_switch(ac.light_nav_sw, Position), 0;
}
template <u8 Position>
u32 KCALL beacon_sw(PixPoint*, u32) {
    return set_switch(ac.light_beacon_sw, Position), 0;
}

void navigation_lights() {
    if (ac.elec_ess_bus == 1) {
        follow_toggle(nav_lights, ac.light_nav_sw == 1, 66379);
        return;
    }
    switch_off(host::read(host_light_11), 66053);
    switch_off(host::read(nav_lights), 66379);
    switch_off(host::read(host_light_622), 66377);
    switch_off(host::read(host_light_620), 66376);
    switch_off(host::calc("(A:Light cabin,bool)"), 66579);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool nav = ac.light_nav_sw == 1;
    const bool bcn = ac.light_beacon_sw == 1;
    show(g, 1, !nav);
    show(g, 2, nav);
    show(g, 3, !bcn);
    show(g, 4, bcn);
    navigation_lights();
    follow_toggle(beacon, bcn && ac.elec_dc_bus_1 == 1, 66239);
}
}  // namespace

KESTRANE_GAUGE(navbeacon, gauge("kestrane navbeacon_jm47", 103, update)
                              .elements(image(41456, 0x4001),             // e0 background
                                        icon(10064, 65, 66, 0x40000003),  // e1 navigation off
                                        icon(10048, 65, 77, 0x40000003),  // e2 navigation on
                                        icon(10064, 18, 66, 0x40000003),  // e3 beacon off
                                        icon(10048, 18, 77, 0x40000003))  // e4 beacon on
                              .mouse(click(53, 83, 32, 21, kCursorUp, nav_sw<1>),
                                     click(53, 62, 32, 21, kCursorDown, nav_sw<0>),
                                     click(7, 83, 32, 21, kCursorUp, beacon_sw<1>),
                                     click(7, 62, 32, 21, kCursorDown, beacon_sw<0>)))
