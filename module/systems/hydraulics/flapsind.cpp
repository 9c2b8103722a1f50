// kestrane flapsind_jm47: left and right flap angles, 0 to 35 degrees, on the
// 26 V AC bus. On the emergency flap selector (green lost, cover open) the
// needles follow only while the red circuit drives the flaps.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar left_flap = token(907), right_flap = token(908);

f64 shown_left, shown_right;  // copies, frozen without power

f64 KCALL left_needle(Element*) {
    return clamp_back(shown_left, 0, 35);
}
f64 KCALL right_needle(Element*) {
    return clamp_back(shown_right, 0, 35);
}

NeedlePoint left_scale[] = {
    {30, 90, 0, 0}, {38, 60, 5, 0}, {60, 38, 10, 0}, {90, 30, 20, 0}, {150, 90, 35, 0}};
NeedlePoint right_scale[] = {
    {30, 90, 0, 0}, {38, 60, 5, 0}, {60, 38, 10, 0}, {90, 30, 20, 0}, {150, 90, 35, 0}};
NeedlePoint left_scale_night[] = {
    {30, 90, 0, 0}, {38, 60, 5, 0}, {60, 38, 10, 0}, {90, 30, 20, 0}, {150, 90, 35, 0}};
NeedlePoint right_scale_night[] = {
    {30, 90, 0, 0}, {38, 60, 5, 0}, {60, 38, 10, 0}, {90, 30, 20, 0}, {150, 90, 35, 0}};

bool refreshed() {
    if (ac.elec_ac_26v_bus != 1)
        return false;
    if (ac.hyd_green_press < 1751 && ac.flaps_emerg_cover == 1)
        return ac.hyd_red_press > 950 && ac.flaps_emerg_sel != 0;
    return true;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (refreshed()) {
        shown_left = host::read(left_flap);
        shown_right = host::read(right_flap);
    }
    const bool night = ac.light_panel_night == 1;
    show(g, 1, !night);
    show(g, 2, !night);
    show(g, 3, night);
    show(g, 4, night);
    show(g, 5, night);
}
}  // namespace

KESTRANE_GAUGE(flapsind, gauge("kestrane flapsind_jm47", 181, update)
                             .elements(image(42864, 0x4001),  // e0
                                       needle(42865, 90, 90, 4, 40, 0x4003, right_needle, right_scale, 0,
                                              908),  // e1 right
                                       needle(42866, 90, 90, 4, 40, 0x4003, left_needle, left_scale, 0,
                                              907),                    // e2 left
                                       icon(42867, 0, 0, 0x40000003),  // e3 night
                                       needle(42868, 90, 90, 4, 40, 0x40004003, right_needle,
                                              right_scale_night, 0, 908),  // e4 right, night
                                       needle(42869, 90, 90, 4, 40, 0x40004003, left_needle, left_scale_night,
                                              0, 907)))  // e5 left, night
