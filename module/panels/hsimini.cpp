// kestrane hsimini_jm47: the overview panel's small HSI. It draws the HSI's
// images from the HSI's state and its knobs act on the HSI's selections; it
// only shows and hides images, and reads the course drums without rolling
// them (the HSI rolls them when it draws).
#include "frame/gauge.h"
#include "guidance/hsi.h"

namespace {
using namespace kestrane;
using namespace kestrane::hsi;

ModuleVar gps = token(848), fail_elec = token(279);

void show_all(GaugeHeader* g) {
    show(g, 5, ac.hsi_to_flag == 1);
    show(g, 4, ac.hsi_to_flag != 1 && ac.hsi_from_flag == 1);
    show(g, 9, ac.hsi_gs_flag == 1);
    show(g, 7, ac.hsi_gs_valid == 1);
    show(g, 3, ac.hsi_nav_flag == 1);
    const u8 sel = ac.hsi_dme_sel;
    const bool dme_on = sel == 1 || sel == 2;
    show(g, 15, sel == 1);
    for (int n = 16; n <= 18; ++n)
        show(g, n, dme_on);
    show(g, 19, sel == 2);
    show(g, 20, dme_on && ac.hsi_dme_flag == 1);
    show(g, 25, ac.hsi_hdg_flag != 0);
    for (int n = 27; n <= 29; ++n)
        show(g, n, ac.hsi_sel_counter_on == 1);
    const bool gps_on = is_on(host::read(gps)) &&
                        (ac.elec_ac_bus_1 == 1 || trunc_to<i32>(host::read(fail_elec)) != 1) &&
                        ac.elec_tadg_on == 1;
    show(g, 26, gps_on);
    const bool night = ac.light_panel_night == 1;
    show(g, 23, night);
    show(g, 24, night);
    show(g, 21, !night);
    show(g, 22, !night);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        show_all(g);
}

// The same values as the HSI's, unclamped; drums where the HSI left them.
f64 KCALL gs_pointer(Element*) {
    return ac.hsi_gs_pointer;
}
template <int N>
f64 KCALL course_digit(Element*) {
    return display.course_drum[N].pos;
}
f64 KCALL dme_hundreds(Element*) {
    return dme_shown.hundreds;
}
f64 KCALL dme_tens(Element*) {
    return dme_shown.tens;
}
f64 KCALL dme_units(Element*) {
    return dme_shown.units;
}
}  // namespace

KESTRANE_GAUGE(hsimini, kestrane::hsi::layout(gauge("kestrane hsimini_jm47", 210, update),
                                              {gs_pointer,
                                               {course_digit<0>, course_digit<1>, course_digit<2>},
                                               {dme_hundreds, dme_tens, dme_units}}))
