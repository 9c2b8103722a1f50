// kestrane gpws_jm47: ground proximity warning computer and its panel (two
// guarded voice-inhibit switches and a test button). Each cycle it works out
// the five warning modes from radio height, sink rate, terrain closure,
// speed, configuration and glide slope, and calls PULL UP or GLIDE SLOPE.
#include <cstdint>

#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1), gs_deviation = token(41), tok44 = token(44), on_ground = token(60),
          airspeed = token(61), altitude_m = token(73), baro_altitude = token(74), tok332 = token(332),
          radio_height_m = token(614), tok624 = token(624), tok643 = token(643), tok907 = token(907);

constexpr f64 kFeetPerMetre = 3.281;

// Arming of modes 3 and 4C.
constexpr u8 kDisarmed = 0, kArmed = 1, kOnGround = 2;

// Modes in which mode 3 keeps its result.
constexpr bool mode3_holds(i16 mode) {
    return mode == 10 || mode == 22 || mode == 43 || mode == 50 || mode == 410 || mode == 420;
}

// Envelope limit by airspeed: `low` up to v0, `high` from v1, linear between.
i32 by_speed(f64 v, f64 v0, f64 v1, i32 low, f64 slope, i32 high) {
    if (v <= v0)
        return low;
    if (v < v1)
        return trunc_to<i32>((v - v0) * slope + low);
    return high;
}

// What one cycle reads from the host.
struct Inputs {
    f64 ra;  // radio height, feet
    f64 v;   // airspeed, knots
    f64 t907, t44, t332, t624, t643;
    bool ground;
};

// Mode 1: excessive sink rate.
void mode1(f64 ra) {
    const f64 vs = ac.adc_vs;
    if (ra > 2450 || ra <= 10 || vs > -1000) {
        ac.gpws_m1 = 0;
        return;
    }
    const i32 a = trunc_to<i32>((-vs - 1000) * 0.61 + 10);
    const i32 b = vs <= -1800 ? trunc_to<i32>((-vs - 1800) * 0.377 + 350) : 0;
    ac.gpws_m1 = b >= ra ? 2 : a >= ra ? 1 : 0;
}

// Radio-height rate over 18 ticks, from two alternating samples; the pass
// back to phase 0 runs at once.
void closure_rate(const Inputs& in, f64 now) {
    u8& step = ac.gpws_rate_step;
    if (step != 0 && !(ac.gpws_rate_deadline <= now))
        return;
    const bool first = step % 2 == 0;
    const u32 sample = first ? ac.gpws_rate_sample_b : ac.gpws_rate_sample_a;
    ac.gpws_closure_rate = trunc_to<i32>((in.ra - sample) * 60);
    ac.gpws_rate_deadline = trunc_to<u32>(now + 18);
    (first ? ac.gpws_rate_sample_a : ac.gpws_rate_sample_b) = trunc_to<u32>(in.ra);
    step = static_cast<u8>((step + 1) % 4);
}

// Mode 2: excessive terrain closure; level 2 holds until a 300 ft climb.
void mode2(const Inputs& in) {
    const i32 upper = by_speed(in.v, 230, 330, 1650, 3.5, 2000);
    if (in.ra > upper || in.ra <= 30 || in.t907 >= 4 || is_on(in.t44)) {
        ac.gpws_m2 = 0;
    } else {
        const f64 c = ac.gpws_closure_rate;
        i32 limit = 0;
        if (c <= -9000)
            limit = 2000;
        else if (c <= -8000)
            limit = trunc_to<i32>((-c - 8000) * 0.2 + 1800);
        else if (c <= -3500)
            limit = trunc_to<i32>((-c - 3500) * 0.122 + 1250);
        else if (c <= -2000)
            limit = trunc_to<i32>((-c - 2000) * 0.81 + 30);
        const i32 half = limit / 2;
        if (half >= in.ra) {
            ac.gpws_m2 = 2;
            ac.gpws_pullup_alt = trunc_to<i32>(host::read(baro_altitude));
        } else if (limit >= in.ra) {
            if (ac.gpws_mode != 22)
                ac.gpws_m2 = 1;
        } else {
            ac.gpws_m2 = 0;
        }
    }
    if (ac.gpws_m2 == 2 && ac.gpws_pullup_alt + 300.0 < host::read(baro_altitude))
        ac.gpws_m2 = 0;
}

// Mode 3: altitude lost after take-off or go-around.
void mode3(const Inputs& in) {
    if (in.ground) {
        ac.gpws_m3_arm = kOnGround;
        ac.gpws_m3_max = 0;
        ac.gpws_m3_loss = 0;
    }
    const bool clean = in.t907 < 4 || in.t332 < 10;
    if ((ac.gpws_m3_arm == kOnGround || ac.ap_go_around == 1) && in.ra >= 30 && clean)
        ac.gpws_m3_arm = kArmed;
    if (in.ra > 1333) {
        ac.gpws_m3_arm = kDisarmed;
        ac.gpws_m3_max = 0;
        ac.gpws_m3_loss = 0;
    }
    const i32 limit = by_speed(in.v, 190, 250, 667, 11.1, 1333);
    const f64 alt = host::read(altitude_m) * kFeetPerMetre;
    const bool in_envelope = limit >= in.ra && in.ra > 30;
    if (in_envelope && ac.gpws_m3_max <= alt)
        ac.gpws_m3_max = trunc_to<u32>(alt);
    ac.gpws_m3_loss = trunc_to<i32>(ac.gpws_m3_max - alt);
    if (in_envelope && clean && ac.gpws_m3_arm == kArmed && trunc_to<i32>(ac.gpws_m3_loss * 6.665) >= in.ra)
        ac.gpws_m3 = 1;
    else if (!mode3_holds(ac.gpws_mode))
        ac.gpws_m3 = 0;
}

// Mode 4A: too low with the gear up.
void mode4a(const Inputs& in) {
    if (in.ra > 1000 || in.ra <= 30 || in.t332 >= 10 || in.ra > by_speed(in.v, 200, 270, 500, 7.143, 1000)) {
        ac.gpws_m4a = 0;
    } else if (in.v <= 200 && (in.t624 < 90 || in.t643 < 90)) {
        ac.gpws_m4a = 1;
    } else if (in.v > 200 && (in.t624 < 80 || in.t643 < 80)) {
        ac.gpws_m4a = 2;
    }
}

// Mode 4B: too low with the flaps up.
void mode4b(const Inputs& in) {
    if (in.ra > 1000 || in.ra <= 30 || in.t332 <= 15000 || in.t907 >= 4 ||
        in.ra > by_speed(in.v, 165, 270, 245, 7.19, 1000)) {
        ac.gpws_m4b = 0;
    } else if (in.t624 < 90 || in.t643 < 90) {
        ac.gpws_m4b = in.v <= 165 ? 1 : 2;
    }
}

// Mode 4C: terrain clearance lost after take-off (a quarter of the highest radio height).
void mode4c(const Inputs& in) {
    if ((in.ground && (in.t624 > 90 || in.t643 > 90)) || ac.ap_go_around == 1) {
        ac.gpws_m4c_arm = kOnGround;
        ac.gpws_m4c_max = 0;
    }
    if (ac.gpws_m4c_arm == kOnGround && in.ra >= 30)
        ac.gpws_m4c_arm = kArmed;
    if (in.ra > 1000) {
        ac.gpws_m4c_arm = kDisarmed;
        ac.gpws_m4c_max = 0;
    }
    const i32 limit = by_speed(in.v, 200, 270, 667, 9.51, 1000);
    if (ac.gpws_m4c_max <= in.ra)
        ac.gpws_m4c_max = trunc_to<u32>(in.ra);
    if (limit >= in.ra && in.ra > 30 && ac.gpws_m4c_arm == kArmed)
        ac.gpws_m4c = static_cast<std::uint64_t>(ac.gpws_m4c_max) * 75 / 100 >= in.ra ? 1 : 0;
    else
        ac.gpws_m4c = 0;
}

// Mode 5: below the glide slope on approach.
void mode5(const Inputs& in) {
    const f64 dev = host::read(gs_deviation);
    const bool approach = is_on(in.t44) && in.t332 >= 11700 && in.t624 < 90 && in.t643 < 90;
    const bool below =
        (in.ra > 150 && in.ra <= 1000 && dev < -80) || (in.ra > 100 && in.ra <= 150 && dev < -100);
    ac.gpws_m5 = approach && below ? 1 : 0;
}

struct Alert {
    u8& result;
    u8 level;
    i16 mode;
};

// First match wins.
constexpr Alert kAlerts[] = {
    {ac.gpws_m1, 1, 10},   {ac.gpws_m1, 2, 12},   {ac.gpws_m2, 1, 20},   {ac.gpws_m2, 2, 22},
    {ac.gpws_m3, 1, 30},   {ac.gpws_m4a, 1, 410}, {ac.gpws_m4a, 2, 412}, {ac.gpws_m4b, 1, 420},
    {ac.gpws_m4b, 2, 422}, {ac.gpws_m4c, 1, 43},
};
constexpr i16 kGlideSlopeMode = 50;

void select_alert() {
    const bool voice = ac.ralt_valid == 1;
    for (const Alert& a : kAlerts) {
        if (a.result == a.level) {
            ac.gpws_mode = a.mode;
            if (voice && ac.gpws_sw_pullup == 1)
                sound::play(sound::kGpwsPullUp);
            return;
        }
    }
    if (ac.gpws_m5 == 1) {
        ac.gpws_mode = kGlideSlopeMode;
        if (voice && ac.gpws_sw_gs == 1)
            sound::play(sound::kGpwsGlideSlope);
        return;
    }
    ac.gpws_mode = 0;
}

// Test: GLIDE SLOPE, PULL UP two seconds later, done two seconds after that.
// On the ground or above 1500 ft only, with no alert; the inhibit switches do
// not apply.
void test(f64 ra, f64 now) {
    const bool allowed = ac.gpws_test == 1 && (is_on(host::read(on_ground)) || ra > 1500) &&
                         ac.gpws_mode == 0 && ac.elec_ess_bus == 1;
    if (!allowed || ac.ralt_valid != 1) {
        if (!allowed) {
            ac.gpws_test_step = 0;
            ac.gpws_test_deadline = 0;
        }
        ac.gpws_test = 0;
        return;
    }
    if (ac.gpws_test_step == 0) {
        sound::play(sound::kGpwsGlideSlope);
        ac.gpws_test_deadline = trunc_to<u32>(now + 36);
        ac.gpws_test_step = 1;
    } else if (ac.gpws_test_deadline <= now) {
        if (ac.gpws_test_step == 1) {
            sound::play(sound::kGpwsPullUp);
            ac.gpws_test_deadline = trunc_to<u32>(now + 36);
            ac.gpws_test_step = 2;
        } else {
            ac.gpws_test_step = 0;
            ac.gpws_test_deadline = 0;
            ac.gpws_test = 0;
        }
    }
}

void panel_images(GaugeHeader* g) {
    const bool pullup_closed = ac.gpws_guard_pullup == 0;
    show(g, 1, pullup_closed);
    show(g, 4, !pullup_closed && ac.gpws_sw_pullup != 1);
    show(g, 5, !pullup_closed && ac.gpws_sw_pullup == 1);
    const bool gs_closed = ac.gpws_guard_gs == 0;
    show(g, 2, gs_closed);
    show(g, 6, !gs_closed && ac.gpws_sw_gs != 1);
    show(g, 7, !gs_closed && ac.gpws_sw_gs == 1);
    show(g, 8, ac.gpws_test == 1 && ac.elec_ess_bus == 1 && ac.ralt_valid == 1);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    panel_images(g);
    if (ac.elec_ess_bus == 0) {
        ac.gpws_mode = 0;
        ac.gpws_test = 0;
    }
    const f64 ra = host::read(radio_height_m) * kFeetPerMetre;
    const f64 now = host::read(tick);
    if (ac.elec_ess_bus == 1 && ac.ralt_valid == 1) {
        mode1(ra);
        const Inputs in{.ra = ra,
                        .v = host::read(airspeed),
                        .t907 = host::read(tok907),
                        .t44 = host::read(tok44),
                        .t332 = host::read(tok332),
                        .t624 = host::read(tok624),
                        .t643 = host::read(tok643),
                        .ground = is_on(host::read(on_ground))};
        closure_rate(in, now);
        mode2(in);
        mode3(in);
        mode4a(in);
        mode4b(in);
        mode4c(in);
        mode5(in);
    }
    select_alert();
    test(ra, now);
}

// Voice switch, upper half: a switch already on gets its guard closed over
// it; otherwise it goes on.
void voice_upper(u8& guard, u8& sw) {
    if (sw == 1) {
        sound::cachemetal();
        guard = 0;
    } else {
        sound::click();
        sw = 1;
    }
}

u32 KCALL pullup_up(PixPoint*, u32) {
    voice_upper(ac.gpws_guard_pullup, ac.gpws_sw_pullup);
    return 0;
}
u32 KCALL pullup_down(PixPoint*, u32) {
    guard_lower(ac.gpws_guard_pullup, ac.gpws_sw_pullup);
    return 0;
}
u32 KCALL gs_up(PixPoint*, u32) {
    voice_upper(ac.gpws_guard_gs, ac.gpws_sw_gs);
    return 0;
}
u32 KCALL gs_down(PixPoint*, u32) {
    guard_lower(ac.gpws_guard_gs, ac.gpws_sw_gs);
    return 0;
}
u32 KCALL test_button(PixPoint*, u32) {
    ac.gpws_test = ac.gpws_test == 0 ? 1 : 0;
    return 0;
}

constexpr u32 kHiddenIcon = 0x40000003;
}  // namespace

KESTRANE_GAUGE(gpws, gauge("kestrane gpws_jm47", 107, update)
                         .elements(image(13680, 0x2),                  // e0 background
                                   icon(13824, 0, 100, kHiddenIcon),   // e1 pull-up guard closed
                                   icon(13840, 39, 100, kHiddenIcon),  // e2 glide-slope guard closed
                                   icon(13696, 0, 0, 0x3),             // e3 front plate
                                   icon(12832, 11, 135, kHiddenIcon),  // e4 pull-up voice down
                                   icon(12848, 11, 151, kHiddenIcon),  // e5 pull-up voice up
                                   icon(12832, 51, 135, kHiddenIcon),  // e6 glide-slope voice down
                                   icon(12848, 51, 151, kHiddenIcon),  // e7 glide-slope voice up
                                   icon(4608, 9, 64, kHiddenIcon))     // e8 test light
                         .mouse(click(0, 150, 36, 50, kCursorUp, pullup_up),
                                click(0, 100, 36, 50, kCursorDown, pullup_down),
                                click(39, 150, 36, 50, kCursorUp, gs_up),
                                click(39, 100, 36, 50, kCursorDown, gs_down),
                                click(39, 55, 33, 33, kCursorHand, test_button)))
