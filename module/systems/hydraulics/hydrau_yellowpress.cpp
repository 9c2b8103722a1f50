// kestrane hydrau_yellowpress_jm47: yellow circuit, two electric servo pumps
// switched on from the servo-control panel. They stand by at 2500 while the
// green circuit is good and feed the servos when it is lost.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;
using namespace kestrane::hyd;

struct ServoPump {
    u8 standby;     // charged up once, now holding
    u8 regulation;  // kSteady (off), kRising, kFalling
};

ServoPump pump1, pump2;
u8 selector;      // the panel's two-position switch, image only; drawn at 1 until first moved
u16 shown_press;  // needle copy

u32 KCALL sel_1(PixPoint*, u32) {
    return set_switch(selector, 1), 0;
}
u32 KCALL sel_2(PixPoint*, u32) {
    return set_switch(selector, 2), 0;
}

f64 KCALL press_needle(Element*) {
    return clamp_back(shown_press, 0, 4000);
}

NeedlePoint press_scale[] = {
    {22, 118, 0, 0}, {22, 82, 1000, 0}, {53, 64, 2000, 0}, {84, 82, 3000, 0}, {84, 118, 4000, 0}};

// `hold_at` is the servo selector position that keeps this pump's circuit
// pressurised at 500 once the green circuit is lost.
void run_pump(ServoPump& s, u16& p, u8 enable, u16 level, u8 hold_at) {
    const bool green_lost = ac.hyd_green_press < kGreenNormal;
    if (enable == 1 && level >= 20) {
        if (p < 2471 && !s.standby) {
            p = static_cast<u16>(p + 30);
            s.regulation = kRising;
        } else if (green_lost) {
            // the servos draw on it: down 5 a cycle to 2000, then recharge
            if (p < 2005) {
                p = 2000;
                s.regulation = kRising;
                s.standby = 0;
            } else {
                p = static_cast<u16>(p - 5);
                s.regulation = kFalling;
                s.standby = 1;
            }
        } else {
            p = kNominal;
        }
        return;
    }
    s.regulation = kSteady;
    if (!green_lost)
        return;
    if (ac.flt_servo_sel != hold_at) {
        p = bleed(p);
    } else if (p >= 515) {
        p = static_cast<u16>(p - 15);
    } else if (p >= 485) {
        p = 500;
    } else {
        p = 0;
        s.standby = 0;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    run_pump(pump1, ac.hyd_yellow1_press, ac.hyd_yellow_pump1_on, ac.hyd_yellow1_level, 3);
    run_pump(pump2, ac.hyd_yellow2_press, ac.hyd_yellow_pump2_on, ac.hyd_yellow2_level, 1);
    ac.hyd_yellow_press = ac.hyd_yellow2_press != 0 ? ac.hyd_yellow2_press : ac.hyd_yellow1_press;
    shown_press = ac.hyd_yellow_press;

    const bool charging = pump1.regulation == kRising || pump2.regulation == kRising;
    show(g, 1, ac.elec_dc_sec_bus == 1 && ac.hyd_yellow_press < kNominal && charging);
    show(g, 2, selector == 2);
    show(g, 3, selector != 2);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(hydrau_yellowpress,
    gauge("kestrane hydrau_yellowpress_jm47", 107, update)
        .elements(image(26768, 0x4001),                  // e0 background
                  icon(32144, 40, 180, 0x40000003),      // e1 yellow circuit light
                  icon(32160, 5, 116, 0x40000003),       // e2 switch at 2
                  icon(32176, 5, 116, 0x40000003),       // e3 switch at 1
                  needle(32192, 53, 100, 4, 32, 0x4003, press_needle, press_scale))  // e4 pressure
        .mouse(click(5, 116, 33, 54, kCursorHand, sel_1),
               click(38, 116, 33, 54, kCursorHand, sel_2)))
// clang-format on
