// kestrane hydrau_redpress_jm47: red standby circuit, one electric pump and
// an accumulator for the gear, flaps, brakes and parking brake.
//
// The pump motor takes 30 cycles to come up to speed on the essential bus
// and as long to run down. It delivers once it is up to speed, and only
// while the bus feeds it: switched off, or with the bus lost, it stops at
// once and the accumulator carries on alone.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;
using namespace kestrane::hyd;

ModuleVar cycle = token(1), on_ground = token(60), brake_pedals = token(320), park_brake = token(323),
          gear_leg = token(333), flap_angle = token(907);

constexpr u8 kFullSpeed = 30;

u8 run_counter;   // motor speed, 0 .. 30
u8 brake_use;     // 0 pedals released, 1 new application, 2 application paid for
u8 charged;       // first charge done since the pump started
u8 regulation;    // kSteady, kRising, kFalling
u16 shown_press;  // needle copy, frozen without 26 V AC

// Flaps-in-motion test, sampled every 30 cycles while the emergency flap
// selector is off neutral.
struct MotionTest {
    u32 deadline;
    f32 angle;
    u8 running;
    u8 moving;
};
MotionTest motion;

u32 KCALL sw_on(PixPoint*, u32) {
    return set_switch(ac.hyd_red_pump_sw, 1), 0;
}
u32 KCALL sw_off(PixPoint*, u32) {
    return set_switch(ac.hyd_red_pump_sw, 0), 0;
}
u32 KCALL sw_on2(PixPoint*, u32) {
    return set_switch(ac.hyd_red_pump_sw, 2), 0;
}

f64 KCALL press_needle(Element*) {
    return clamp_back(shown_press, 0, 4000);
}

NeedlePoint press_scale[] = {
    {22, 118, 0, 0}, {22, 82, 1000, 0}, {53, 64, 2000, 0}, {84, 82, 3000, 0}, {84, 118, 4000, 0}};

u16 less(u16 p, u16 d) {
    return p < d ? 0 : static_cast<u16>(p - d);
}

void sample_flaps(f64 now) {
    if (ac.flaps_emerg_sel != 1 && ac.flaps_emerg_sel != 2) {
        motion.running = 0;
        motion.moving = 0;
        return;
    }
    const f64 angle = host::read(flap_angle);
    if (motion.running) {
        if (!(now > motion.deadline))
            return;
        const f64 moved = angle - motion.angle;
        motion.moving = moved > 0.1 || moved < -0.1;
    }
    motion.deadline = trunc_to<u32>(now + 30);
    motion.angle = trunc_to<f32>(angle);
    motion.running = 1;
}

// Holds the pressure in a band round `target`: below it climbs 15 a cycle,
// above it drops by `drop`.
void regulate(u16& p, u16 target, u16 below, u16 from, u16 drop, u8 above_state, bool steady_in_band) {
    if (p < below) {
        p = static_cast<u16>(p + 15);
        regulation = kRising;
    } else if (p < from) {
        p = target;
        if (steady_in_band)
            regulation = kSteady;
    } else {
        p = static_cast<u16>(p - drop);
        regulation = above_state;
    }
}

void pump_working(f64 now) {
    u16& p = ac.hyd_red_press;
    sample_flaps(now);
    if (brake_use == 1) {
        p = less(p, 50);
        brake_use = 2;
    } else if (p < 2471 && !charged && brake_use == 0) {
        p = static_cast<u16>(p + 30);
        regulation = kRising;
    } else {
        charged = 1;
        const f64 gear = host::read(gear_leg);
        const bool gear_still = gear <= 10.0 || gear > 16100.0;
        if (gear_still || ac.gear_emerg_lever != 1) {
            if (motion.moving)
                regulate(p, 1000, 986, 1050, 50, kFalling, false);
            else
                regulate(p, 2500, 2486, 2515, 15, kSteady, true);
        } else {
            regulate(p, 1500, 1471, 1550, 50, kFalling, false);  // emergency gear in transit
        }
    }
}

// The accumulator alone serves one brake application each time the
// green circuit cannot.
void pump_stopped() {
    regulation = kSteady;
    charged = 0;
    if (brake_use == 1 && ac.hyd_green_press < kGreenNormal) {
        ac.hyd_red_press = less(ac.hyd_red_press, 50);
        brake_use = 2;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 now = host::read(cycle);

    if (ac.hyd_red_pump_sw == 0) {
        if (run_counter > 0)
            --run_counter;
    } else if (ess_bus() && run_counter < kFullSpeed) {
        ++run_counter;
    }

    const f64 pedals = host::read(brake_pedals);
    if (is_on(host::read(on_ground)) && pedals > 8000 && host::read(park_brake) == 0.0 && brake_use == 0)
        brake_use = 1;
    if (pedals <= 8000)
        brake_use = 0;

    if (run_counter == kFullSpeed && ess_bus() && ac.hyd_red_level >= 20)
        pump_working(now);
    else
        pump_stopped();

    const u16 p = ac.hyd_red_press;
    show(g, 1,
         ess_bus() && ((regulation == kFalling && p < 2000) || (regulation == kRising && p < kNominal)));
    show(g, 2, ac.hyd_red_pump_sw == 2);
    show(g, 3, ac.hyd_red_pump_sw == 0);
    show(g, 4, ac.hyd_red_pump_sw == 1);
    if (ac.elec_ac_26v_bus == 1)
        shown_press = p;
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(hydrau_redpress,
    gauge("kestrane hydrau_redpress_jm47", 107, update)
        .elements(image(26752, 0x4001),                  // e0 background
                  icon(32016, 40, 180, 0x40000003),      // e1 red circuit light
                  icon(32032, 0, 116, 0x40000003),       // e2 switch at 2
                  icon(32048, 0, 116, 0x40000003),       // e3 switch at 0
                  icon(32064, 0, 116, 0x40000003),       // e4 switch at 1
                  needle(32080, 53, 100, 4, 32, 0x4003, press_needle, press_scale))  // e5 pressure
        .mouse(click(0, 116, 23, 58, kCursorUp, sw_on),
               click(23, 116, 23, 58, kCursorHand, sw_off),
               click(46, 116, 23, 58, kCursorDown, sw_on2)))
// clang-format on
