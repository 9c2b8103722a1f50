// kestrane hsi_jm47: horizontal situation indicator. Compass card, course
// pointer and deviation bar, TO/FROM arrows, glide slope, heading-selection
// needle, course and selected-heading counters, DME display and flags. The
// HSI owns the selected heading and sets the host's course.
#include "guidance/hsi.h"

#include <cstdint>

#include "frame/drum.h"
#include "frame/gauge.h"

namespace kestrane::hsi {

Display display{};
nav::DmeDigits dme_shown{};

namespace {

ModuleVar tick = token(1), dme1 = token(31), dme2 = token(35), deviation = token(40), gs_dev = token(41),
          to_from = token(43), gs_valid = token(44), course = token(45), nav1_code = token(46),
          station = token(49), heading = token(84), fail_elec = token(279), fail_hdg = token(282),
          gps = token(848);

constexpr u32 kSetCourse = 65716;
constexpr i32 kCounterLife = 30;  // ticks the selected-heading counter stays after a click

bool nav_powered() {
    return ac.elec_dc_sec_bus == 1 && ac.nav1_rx_mode != 0;
}

void course_click(i32 step) {
    const std::int64_t c = nav::course_step(ac.hsi_course, host::read(course), step);
    host::send_event(kSetCourse, static_cast<u32>(c));
    display.course_knob = nav::knob_step(display.course_knob, step);
}

void heading_click(i32 step) {
    ac.hsi_hdg_bug = nav::heading_step(ac.hsi_hdg_bug, step);
    display.heading_knob = nav::knob_step(display.heading_knob, step);
    display.counter_request = true;
}

// DME source by the selector: distance and flag.
void dme_cycle(bool hsi_on) {
    if (ac.hsi_dme_sel != 1 && ac.hsi_dme_sel != 2) {
        ac.hsi_dme_flag = 0;
        return;
    }
    const bool one = ac.hsi_dme_sel == 1;
    const f64 d = host::read(one ? dme1 : dme2);
    const bool bus = one ? ac.elec_dc_sec_bus == 1 : ac.elec_dc_sec_gen_bus == 1;
    const u8 mode = one ? ac.nav1_rx_mode : ac.nav2_rx_mode;
    const bool flagged = d < 0.0 || !bus || !hsi_on || mode < 2;
    ac.hsi_dme_flag = flagged ? 1 : 0;
    ac.dme_distance = flagged ? 0.0 : d;
}

void counter_cycle() {
    Display& s = display;
    const i32 now = trunc_to<i32>(host::read(tick));
    if (s.counter_request && !s.counter_running) {
        ac.hsi_sel_counter_on = 1;
        s.counter_start = now;
        s.counter_request = false;
        s.counter_running = true;
    } else if (s.counter_request) {
        s.counter_running = false;  // restarts the timer next cycle
    } else if (s.counter_running && std::int64_t{now} == std::int64_t{s.counter_start} + kCounterLife) {
        ac.hsi_sel_counter_on = 0;  // still running: the next request restarts it
    }
}

void show_all(GaugeHeader* g, bool gps_on) {
    const u8 sel = ac.hsi_dme_sel;
    const bool dme_on = sel == 1 || sel == 2;
    const bool night = ac.light_panel_night == 1;
    show(g, 3, ac.hsi_nav_flag == 1);
    show(g, 4, ac.hsi_from_flag == 1);
    show(g, 5, ac.hsi_to_flag == 1);
    show(g, 7, ac.hsi_gs_valid == 1);
    show(g, 9, ac.hsi_gs_flag == 1);
    show(g, 15, sel == 1);
    for (int n = 16; n <= 18; ++n)
        show(g, n, dme_on);
    show(g, 19, sel == 2);
    show(g, 20, ac.hsi_dme_flag == 1);
    show(g, 21, !night);
    show(g, 22, !night);
    show(g, 23, night);
    show(g, 24, night);
    show(g, 25, ac.hsi_hdg_flag == 1);
    show(g, 26, gps_on);
    for (int n = 27; n <= 29; ++n)
        show(g, n, ac.hsi_sel_counter_on == 1);
}

void hsi_cycle(GaugeHeader* g) {
    const bool hsi_on = powered();
    const bool nav_on = nav_powered() && hsi_on;
    const f64 obs = host::read(course);
    const f64 hdg = host::read(heading);

    // 1. angles, frozen without power
    if (hsi_on) {
        ac.hsi_course_angle = trunc_to<i32>(360.0 - hdg + obs);
        ac.hsi_bug_angle = trunc_to<i32>(360.0 - hdg + ac.hsi_hdg_bug);
    }
    ac.hsi_course = trunc_to<i32>(obs);

    // 2. TO/FROM
    if (nav_on) {
        const i32 tf = trunc_to<i32>(host::read(to_from));
        ac.hsi_to_flag = tf == 1 ? 1 : 0;
        ac.hsi_from_flag = tf == 2 ? 1 : 0;
    }

    // 3. ILS
    const u32 code = trunc_to<u32>(host::read(nav1_code));
    ac.nav1_code_gs = (code & 0x40) ? 1 : 0;
    ac.nav1_code_loc = (code & 0x80) ? 1 : 0;

    // 4. glide-slope scale and flag
    const f64 gs = host::read(gs_valid);
    const bool scale = gs == 1.0 && nav_on;
    const bool gs_warn = !scale && gs == 0.0 && ac.nav1_code_gs == 1 && hsi_on;
    ac.hsi_gs_valid = scale ? 1 : 0;
    ac.hsi_gs_flag = gs_warn ? 1 : 0;

    // 5. NAV flag
    ac.hsi_nav_flag = host::read(station) <= 0.0 || !nav_on ? 1 : 0;

    // 6. glide-slope pointer
    ac.hsi_gs_pointer =
        nav::gs_pointer_step(ac.hsi_gs_pointer, ac.nav1_code_gs == 1 && nav_on, host::read(gs_dev));

    // 7. card and deviation
    if (hsi_on) {
        ac.hsi_card = hdg;
        if (nav_on)
            ac.hsi_cdi = host::read(deviation);
    }

    // 8. DME
    dme_cycle(hsi_on);

    // 9. counters
    if (hsi_on) {
        ac.hsi_hdg_flag = 0;
        dme_shown = nav::dme_digits(ac.dme_distance);
        const nav::DmeDigits c = nav::course_digits(obs);
        drum_aim(display.course_drum[0], c.hundreds);
        drum_aim(display.course_drum[1], c.tens);
        drum_aim(display.course_drum[2], c.units);
        counter_cycle();
    }

    // 10. failures
    const bool failed =
        ac.elec_ac_bus_1 == 0 || trunc_to<i32>(host::read(fail_elec)) == 1 || ac.elec_tadg_on == 0;
    if (failed) {
        ac.hsi_sel_counter_on = 0;
        ac.hsi_to_flag = 0;
        ac.hsi_from_flag = 0;
        ac.hsi_gs_valid = 0;
        ac.hsi_gs_flag = 1;
        ac.hsi_nav_flag = 1;
        ac.hsi_dme_flag = 1;
    }
    ac.hsi_hdg_flag = failed || trunc_to<i32>(host::read(fail_hdg)) == 1 ? 1 : 0;
    const bool gps_on = is_on(host::read(gps)) && ac.elec_ac_bus_1 == 1 &&
                        trunc_to<i32>(host::read(fail_elec)) != 1 && ac.elec_tadg_on == 1;

    // 11. lighting, with all the images
    show_all(g, gps_on);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        hsi_cycle(g);
}

// ---------------------------------------------------------------- drawing

f64 KCALL gs_pointer(Element*) {
    return clamp_back(ac.hsi_gs_pointer, nav::kGsParked, nav::kGsTop);
}
template <int N>
f64 KCALL course_digit(Element*) {
    return drum_step(display.course_drum[N]);
}
f64 KCALL dme_hundreds(Element*) {
    return clamp_back(dme_shown.hundreds, 0.0, 10.0);
}
f64 KCALL dme_tens(Element*) {
    return clamp_back(dme_shown.tens, 0.0, 10.0);
}
f64 KCALL dme_units(Element*) {
    return clamp_back(dme_shown.units, 0.0, 10.0);
}
}  // namespace

u32 KCALL course_minus_1(PixPoint*, u32) {
    course_click(-1);
    return 0;
}
u32 KCALL course_plus_1(PixPoint*, u32) {
    course_click(1);
    return 0;
}
u32 KCALL course_minus_10(PixPoint*, u32) {
    course_click(-10);
    return 0;
}
u32 KCALL course_plus_10(PixPoint*, u32) {
    course_click(10);
    return 0;
}
u32 KCALL heading_minus_1(PixPoint*, u32) {
    heading_click(-1);
    return 0;
}
u32 KCALL heading_plus_1(PixPoint*, u32) {
    heading_click(1);
    return 0;
}
u32 KCALL heading_minus_10(PixPoint*, u32) {
    heading_click(-10);
    return 0;
}
u32 KCALL heading_plus_10(PixPoint*, u32) {
    heading_click(10);
    return 0;
}
u32 KCALL dme_select(PixPoint*, u32) {
    ac.hsi_dme_sel = ac.hsi_dme_sel >= 2 ? 0 : static_cast<u8>(ac.hsi_dme_sel + 1);
    return 0;
}

}  // namespace kestrane::hsi

// The declaration below names the handlers and callbacks above.
namespace {
using namespace kestrane::hsi;
}

KESTRANE_GAUGE(hsi, kestrane::hsi::layout(gauge("kestrane hsi_jm47", 210, update),
                                          {gs_pointer,
                                           {course_digit<0>, course_digit<1>, course_digit<2>},
                                           {dme_hundreds, dme_tens, dme_units}}))
