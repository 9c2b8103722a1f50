// kestrane servos_jm47: servo-control panel. The emergency selector runs one
// of the two yellow servo pumps (2: pump 2, 4: pump 1; 1 and 3 prepare and
// hold that pump's circuit at 500 once the green circuit is lost), two
// display-only selectors, and the four servo lights with their test toggles.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;
using namespace kestrane::hyd;

u8 left_sel, right_sel;  // display-only selectors, 0 centre, 1 up, 2 down

// Emergency selector: no sound. 1 and 3 are reached from the centre (or back
// from 2 and 4), 2 only from 1, 4 only from 3.
void move_sel(u8 from_a, u8 from_b, u8 to) {
    if (ac.flt_servo_sel == from_a || ac.flt_servo_sel == from_b)
        ac.flt_servo_sel = to;
}
u32 KCALL sel_1(PixPoint*, u32) {
    return move_sel(0, 2, 1), 0;
}
u32 KCALL sel_2(PixPoint*, u32) {
    return move_sel(1, 1, 2), 0;
}
u32 KCALL sel_0(PixPoint*, u32) {
    return move_sel(1, 3, 0), 0;
}
u32 KCALL sel_3(PixPoint*, u32) {
    return move_sel(0, 4, 3), 0;
}
u32 KCALL sel_4(PixPoint*, u32) {
    return move_sel(3, 3, 4), 0;
}

// Display-only selectors: up and down only from the centre.
void side_sel(u8& sel, u8 to) {
    if (to == 0 || sel == 0)
        set_switch(sel, to);
}
u32 KCALL left_up(PixPoint*, u32) {
    return side_sel(left_sel, 1), 0;
}
u32 KCALL left_mid(PixPoint*, u32) {
    return side_sel(left_sel, 0), 0;
}
u32 KCALL left_down(PixPoint*, u32) {
    return side_sel(left_sel, 2), 0;
}
u32 KCALL right_up(PixPoint*, u32) {
    return side_sel(right_sel, 1), 0;
}
u32 KCALL right_mid(PixPoint*, u32) {
    return side_sel(right_sel, 0), 0;
}
u32 KCALL right_down(PixPoint*, u32) {
    return side_sel(right_sel, 2), 0;
}

void flip(u8& v) {
    v = v ? 0 : 1;
}
u32 KCALL test_1(PixPoint*, u32) {
    return flip(ac.servo_test_1), 0;
}
u32 KCALL test_2(PixPoint*, u32) {
    return flip(ac.servo_test_2), 0;
}
u32 KCALL test_3(PixPoint*, u32) {
    return flip(ac.servo_test_3), 0;
}
u32 KCALL test_4(PixPoint*, u32) {
    return flip(ac.servo_test_4), 0;
}

// A yellow pump selected waits for the secondary DC bus, then runs.
void pump_enable(u8& on, bool selected) {
    const bool bus = ac.elec_dc_sec_bus == 1;
    if (!selected)
        on = 0;
    else if (bus && on == 3)
        on = 1;
    else if (on == 0 || !bus)
        on = 3;
}

// Low-pressure light with its test toggle; the warning flag follows the
// light only while the pressure, not the test, lights it.
bool low_light(u8 test, u16 press, u8& low_flag) {
    if (test)
        return true;
    low_flag = press < kLowPress;
    return low_flag;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    pump_enable(ac.hyd_yellow_pump2_on, ac.flt_servo_sel == 2);
    pump_enable(ac.hyd_yellow_pump1_on, ac.flt_servo_sel == 4);

    show(g, 1, left_sel == 1);
    show(g, 2, left_sel == 0);
    show(g, 3, left_sel == 2);
    show(g, 4, ac.flt_servo_sel == 2);
    show(g, 5, ac.flt_servo_sel == 1);
    show(g, 6, ac.flt_servo_sel == 0);
    show(g, 7, ac.flt_servo_sel == 3);
    show(g, 8, ac.flt_servo_sel == 4);
    show(g, 9, right_sel == 1);
    show(g, 10, right_sel == 0);
    show(g, 11, right_sel == 2);

    // Without the essential bus the lights are dark and the flags keep their values.
    const bool ess = ess_bus();
    show(g, 12, ess && ac.servo_test_1);
    show(g, 13, ess && low_light(ac.servo_test_2, ac.hyd_blue_press, ac.servo_low_press_blue));
    show(g, 14, ess && ac.servo_test_3);
    show(g, 15, ess && low_light(ac.servo_test_4, ac.hyd_green_press, ac.servo_low_press_green));
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(servos,
    gauge("kestrane servos_jm47", 411, update)
        .elements(image(40816, 0x4001),               // e0 background
                  icon(46096, 36, 37, 0x40000003),    // e1 left selector up
                  icon(46112, 36, 168, 0x40000003),   // e2 left selector centre
                  icon(46128, 36, 301, 0x40000003),   // e3 left selector down
                  icon(46144, 131, 37, 0x40000003),   // e4 emergency selector at 2
                  icon(46160, 208, 37, 0x40000003),   // e5 emergency selector at 1
                  icon(46176, 208, 168, 0x40000003),  // e6 emergency selector centre
                  icon(46192, 208, 301, 0x40000003),  // e7 emergency selector at 3
                  icon(46208, 131, 301, 0x40000003),  // e8 emergency selector at 4
                  icon(46224, 309, 37, 0x40000003),   // e9 right selector up
                  icon(46240, 309, 168, 0x40000003),  // e10 right selector centre
                  icon(46256, 309, 301, 0x40000003),  // e11 right selector down
                  icon(46272, 47, 0, 0x40000003),     // e12 servo light 1
                  icon(46288, 156, 0, 0x40000003),    // e13 servo light 2, blue low pressure
                  icon(46304, 27, 488, 0x40000003),   // e14 servo light 3
                  icon(46320, 137, 488, 0x40000003))  // e15 servo light 4, green low pressure
        .mouse(click(208, 37, 77, 125, kCursorHand, sel_1),
               click(131, 37, 77, 125, kCursorHand, sel_2),
               click(208, 168, 77, 125, kCursorHand, sel_0),
               click(208, 301, 77, 125, kCursorHand, sel_3),
               click(131, 301, 77, 125, kCursorHand, sel_4),
               click(36, 37, 77, 125, kCursorHand, left_up),
               click(36, 168, 77, 125, kCursorHand, left_mid),
               click(36, 301, 77, 125, kCursorHand, left_down),
               click(309, 37, 77, 125, kCursorHand, right_up),
               click(309, 168, 77, 125, kCursorHand, right_mid),
               click(309, 301, 77, 125, kCursorHand, right_down),
               click(47, 0, 88, 34, kCursorHand, test_1),
               click(156, 0, 88, 34, kCursorHand, test_2),
               click(27, 488, 88, 41, kCursorHand, test_3),
               click(137, 488, 88, 41, kCursorHand, test_4)))
// clang-format on
