// kestrane ias_jm47: airspeed indicator with its second needle, two speed
// bugs, the take-off and approach preset buttons, the V-speed counters and
// the 80 knots, V1 and VR call-outs of the take-off run.
#include "frame/gauge.h"
#include "instruments/ias_dial.h"
#include "instruments/ias_speeds.h"

namespace kestrane::ias {
namespace {

// A preset button: the click requests, the next cycle sets the bugs and
// lights the button for 36 ticks.
struct Preset {
    u8 request;
    u8 running;
    u32 end;
};

struct Airspeed {
    VSpeeds v;
    u32 vr_i;  // whole knots
    f64 weight;
    u8 display_on;
    u8 upper_tens, upper_units;  // reference speed
    u8 lower_tens, lower_units;  // VR on the ground, approach speed in flight
    u32 bug_3;                   // set by the presets, not shown
    Preset takeoff, approach;
    u8 called_80, called_v1, called_vr;
};

Airspeed asi{};

ModuleVar tick = token(1), on_ground = token(60), airspeed = token(61), max_speed = token(63),
          airbrakes = token(326), throttle_1 = token(558), throttle_2 = token(568), flaps = token(907);

// chain numbers of the images the callback shows and hides
constexpr int kTakeoffLight = 5, kApproachLight = 6, kGroundLabel = 7, kFlightLabel = 8, kFirstDigit = 9,
              kLastDigit = 14;

u8 digit(f64 v) {
    return trunc_to<u8>(v);
}

void set_takeoff_bugs() {
    asi.bug_3 = trunc_to<u32>(asi.v.vr);
    ac.ias_bug_1 = trunc_to<u32>(asi.v.vr);
    ac.ias_bug_2 = ac.ias_bug_1 + 3 < 150 ? 150 : ac.ias_bug_1 + 3;
}

void set_approach_bugs() {
    asi.bug_3 = trunc_to<u32>(asi.v.app);
    ac.ias_bug_1 = trunc_to<u32>(asi.v.ref);
    const f64 above = asi.v.ref + 25.0;
    ac.ias_bug_2 = above <= static_cast<f64>(ac.ias_bug_1) + 3.0 ? ac.ias_bug_1 + 3 : trunc_to<u32>(above);
}

void preset_cycle(GaugeHeader* g, int light, Preset& p, f64 now, void (*set_bugs)()) {
    if (p.request == 1 && p.running == 0) {
        set_bugs();
        p.end = trunc_to<u32>(now + 36.0);
        p.running = 1;
    }
    if (p.running == 1 && now >= static_cast<f64>(p.end)) {
        p.request = 0;
        p.running = 0;
    }
    show(g, light, p.running == 1 && static_cast<f64>(p.end) > now);
}

void counters_cycle(GaugeHeader* g) {
    const bool on = asi.display_on == 1;
    if (on) {
        const i32 ref_tens = trunc_to<i32>(asi.v.ref / 10.0 - 10.0);
        asi.upper_tens = digit(ref_tens);
        asi.upper_units = digit(asi.v.ref - (ref_tens * 10.0 + 100.0));
        const bool ground = is_on(host::read(on_ground));
        if (ground) {
            const std::int64_t vr_tens = static_cast<std::int64_t>(asi.vr_i / 10) - 10;
            asi.lower_tens = digit(static_cast<f64>(vr_tens));
            asi.lower_units =
                digit(static_cast<f64>(static_cast<std::int64_t>(asi.vr_i) - (vr_tens * 10 + 100)));
        } else {
            const i32 app_tens = trunc_to<i32>(asi.v.app / 10.0 - 10.0);
            asi.lower_tens = digit(app_tens);
            asi.lower_units = digit(asi.v.app - (app_tens * 10.0 + 100.0));
        }
        show(g, kGroundLabel, ground);
        show(g, kFlightLabel, !ground);
    } else {
        show(g, kGroundLabel, false);
        show(g, kFlightLabel, false);
    }
    for (int n = kFirstDigit; n <= kLastDigit; ++n)
        show(g, n, on);
}

// Each call-out sounds once per take-off run; the run ends when the aircraft
// leaves the ground or both throttles come back below 0.8.
void callouts_cycle(f64 speed) {
    const bool takeoff =
        is_on(host::read(on_ground)) && (host::read(throttle_1) >= 0.8 || host::read(throttle_2) >= 0.8);
    if (!takeoff) {
        asi.called_80 = asi.called_v1 = asi.called_vr = 0;
        return;
    }
    if (speed >= 80.0 && asi.called_80 == 0) {
        sound::play(sound::kV80Kts);
        asi.called_80 = 1;
    }
    if (speed >= asi.v.v1 && asi.called_v1 == 0) {
        sound::play(sound::kV1Kts);
        asi.called_v1 = 1;
    }
    if (speed >= static_cast<f64>(asi.vr_i) && asi.called_vr == 0) {
        sound::play(sound::kVrKts);
        asi.called_vr = 1;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    // rises at most 10 knots a cycle, falls at once
    const f64 speed = host::read(airspeed);
    if (speed - 10.0 <= ac.ias_needle)
        ac.ias_needle = speed;
    else
        ac.ias_needle += 10.0;

    ac.ias_max_needle = host::read(max_speed) / 128.0;
    if (asi.bug_3 < 90)
        asi.bug_3 = 90;
    if (asi.bug_3 > 250)
        asi.bug_3 = 250;

    asi.weight = host::calc("(A:TOTAL WEIGHT,kilogram)");
    const bool airbrakes_in = host::read(airbrakes) <= static_cast<f64>(ac.flt_airbrake_retract_thr);
    asi.v = v_speeds(asi.weight, host::read(flaps), airbrakes_in);
    asi.vr_i = trunc_to<u32>(asi.v.vr);

    const f64 now = host::read(tick);
    preset_cycle(g, kTakeoffLight, asi.takeoff, now, set_takeoff_bugs);
    preset_cycle(g, kApproachLight, asi.approach, now, set_approach_bugs);
    counters_cycle(g);
    callouts_cycle(speed);
}

f64 KCALL speed_needle(Element*) {
    return clamp_back(ac.ias_needle, 0.0, 400.0);
}
f64 KCALL max_needle(Element*) {
    return clamp_back(ac.ias_max_needle, 0.0, 400.0);
}
f64 KCALL bug_1_needle(Element*) {
    return clamp_back(ac.ias_bug_1, 80.0, 250.0);
}
f64 KCALL bug_2_needle(Element*) {
    return clamp_back(ac.ias_bug_2, 80.0, 250.0);
}

// Counter digits: one strip, the value picks the digit.
f64 KCALL strip_x(Element*) {
    return 0.0;
}
f64 KCALL hundreds(Element*) {
    return 1.0;
}
f64 KCALL upper_tens(Element*) {
    return asi.upper_tens;
}
f64 KCALL upper_units(Element*) {
    return asi.upper_units;
}
f64 KCALL lower_tens(Element*) {
    return asi.lower_tens;
}
f64 KCALL lower_units(Element*) {
    return asi.lower_units;
}

u32 KCALL toggle_display(PixPoint*, u32) {
    asi.display_on = asi.display_on == 1 ? 0 : 1;
    return 0;
}

constexpr u32 kLightFlags = 0x3, kLabelFlags = 0x40000003, kDigitFlags = 0x40004003;
}  // namespace

u32 KCALL bug_1_down_area(PixPoint*, u32) {
    bug_1_down(ac.ias_bug_1);
    return 0;
}
u32 KCALL bug_1_up_area(PixPoint*, u32) {
    bug_1_up(ac.ias_bug_1, ac.ias_bug_2);
    return 0;
}
u32 KCALL bug_2_down_area(PixPoint*, u32) {
    bug_2_down(ac.ias_bug_1, ac.ias_bug_2);
    return 0;
}
u32 KCALL bug_2_up_area(PixPoint*, u32) {
    bug_2_up(ac.ias_bug_2);
    return 0;
}
u32 KCALL preset_takeoff_area(PixPoint*, u32) {
    asi.takeoff.request = 1;
    return 0;
}
u32 KCALL preset_approach_area(PixPoint*, u32) {
    asi.approach.request = 1;
    return 0;
}

}  // namespace kestrane::ias

namespace {
using namespace kestrane::ias;
}

KESTRANE_GAUGE(
    ias,
    knobs(dial(gauge("kestrane ias_jm47", 206, update),
               {speed_needle, max_needle, bug_1_needle, bug_2_needle},
               icon(49464, 0, 164, kLightFlags),                                         // e5 preset-1 light
               icon(49480, 102, 164, kLightFlags),                                       // e6 preset-2 light
               icon(49496, 0, 0, kLabelFlags),                                           // e7 ground label
               icon(49512, 0, 0, kLabelFlags),                                           // e8 flight label
               moving(49528, 137, 43, kDigitFlags, strip_x, lower_units, 0, 10, 0, 10),  // e9 lower units
               moving(49528, 119, 43, kDigitFlags, strip_x, lower_tens, 0, 10, 0, 10),   // e10 lower tens
               moving(49528, 101, 43, kDigitFlags, strip_x, hundreds, 0, 10, 0, 10),     // e11 lower hundreds
               moving(49528, 137, 11, kDigitFlags, strip_x, upper_units, 0, 10, 0, 10),  // e12 upper units
               moving(49528, 119, 11, kDigitFlags, strip_x, upper_tens, 0, 10, 0, 10),   // e13 upper tens
               moving(49528, 101, 11, kDigitFlags, strip_x, hundreds, 0, 10, 0, 10)),    // e14 upper hundreds
          click(69, 46, 70, 70, kCursorHand, toggle_display)))
