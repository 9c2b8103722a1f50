// kestrane ralt_jm47: radio altimeter. Its own on/off switch on the 26 V AC
// bus, a 180-tick warm-up, tracking below 5000 ft, the decision-height bug and
// light, a DH test and two self-tests (the second drives the needle to 115 ft).
// Its validity flag and needle feed the ground proximity warning.
#include "instruments/ralt.h"

namespace kestrane::ralt {

Requests requests{};

namespace {

ModuleVar tick = token(1);
ModuleVar radio_height = token(614);  // metres

constexpr f64 kFeetPerMetre = 3.281;
constexpr f64 kWarmupTicks = 180;
constexpr f64 kTestTicks = 36;
constexpr f64 kSwitchOffHeight = 5000;  // feet
constexpr u32 kDhStep = 5, kDhTop = 2500;

// A timed test: started by its request, running until its end tick.
struct Test {
    u8 running;
    u32 end;
};

u8 started = 0;  // warm-up started
u32 warmup_end = 0;
u8 dh_alert = 0;
Test dh_check{}, self_test_1{}, self_test_2{};

bool powered() {
    return ac.elec_ac_26v_bus == 1;
}

// Starts the test on its request; true while it runs. At its end the request
// clears itself.
bool run_test(Test& t, u8& request, f64 now) {
    if (request == 0) {
        t.running = 0;
        return false;
    }
    if (t.running == 0) {
        t.running = 1;
        t.end = trunc_to<u32>(now + kTestTicks);
    }
    if (now < static_cast<f64>(t.end))
        return true;
    t.running = 0;
    request = 0;
    return false;
}

// Unpowered or warming: the needle winds down to 0.
void wind_down(f64& n) {
    if (n > 500)
        n -= 50;
    else if (n > 0)
        n -= 10;
    else
        n = 0;
}

void track(f64& n, f64 ra) {
    if (n - ra > 500)
        n -= 50;
    else if (n - ra > 10)
        n -= 10;
    else if (ra - n > 10)
        n += 50;
    else
        n = ra;
}

// Self-test 2 holds the needle at 115 ft.
void test_height(f64& n) {
    if (n < 110)
        n += 5;
    else if (n > 500)
        n -= 10;
    else if (n > 120)
        n -= 5;
    else
        n = 115;
}

void cycle(GaugeHeader* g) {
    const f64 now = host::read(tick);
    const f64 ra = host::read(radio_height) * kFeetPerMetre;
    const bool power = powered();
    const bool test_2 = power && requests.test_2 == 1;
    f64& n = ac.ralt_needle;

    if (power && ac.adc_ralt_sw == 1) {
        if (started == 0) {
            warmup_end = trunc_to<u32>(now + kWarmupTicks);
            started = 1;
        }
        if (now < static_cast<f64>(warmup_end)) {
            ac.ralt_warmup_flag = 1;
            if (!test_2)
                wind_down(n);
        } else if (!test_2) {
            ac.ralt_warmup_flag = 0;
            ac.ralt_off_flag = 0;
            ac.ralt_valid = 1;
            if (ra >= kSwitchOffHeight) {
                ac.adc_ralt_sw = 0;
                ac.ralt_valid = 0;
                started = 0;
            } else {
                track(n, ra);
            }
        }
    } else {
        ac.ralt_warmup_flag = 0;
        ac.ralt_valid = 0;
        ac.adc_ralt_sw = 0;
        started = 0;
        if (!test_2)
            wind_down(n);
        ac.ralt_off_flag = 1;
    }

    dh_alert = ac.ralt_valid == 1 && power && static_cast<f64>(ac.ralt_dh) >= ra;
    ac.ralt_dh_light = dh_alert;

    if (power) {
        if (run_test(dh_check, requests.dh_test, now))
            ac.ralt_dh_light = 1;
        const bool t1 = run_test(self_test_1, requests.test_1, now);
        const bool t2 = run_test(self_test_2, requests.test_2, now);
        if (t2)
            test_height(n);
        ac.ralt_test_light = t1 || t2;
    } else {
        // unpowered: the lights go out; a test under way keeps its request
        // and end tick
        ac.ralt_dh_light = 0;
        ac.ralt_test_light = 0;
    }

    show(g, kOffFlag, ac.ralt_off_flag == 1);
    show(g, kDhLight, ac.ralt_dh_light == 1);
    show(g, kWarmup, ac.ralt_warmup_flag == 1);
    show(g, kTest, ac.ralt_test_light == 1);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        cycle(g);
}

f64 KCALL dh_bug(Element*) {
    return clamp_back(ac.ralt_dh, 0.0, static_cast<f64>(kDhTop));
}
f64 KCALL height(Element*) {
    return clamp_back(ac.ralt_needle, 0.0, 2750.0);
}
}  // namespace

u32 KCALL switch_off(PixPoint*, u32) {
    set_switch(ac.adc_ralt_sw, 0);
    return 0;
}
u32 KCALL switch_on(PixPoint*, u32) {
    if (powered())
        set_switch(ac.adc_ralt_sw, 1);
    return 0;
}
u32 KCALL test_1(PixPoint*, u32) {
    if (powered()) {
        requests.test_1 = 1;
        requests.test_2 = 0;
    }
    return 0;
}
u32 KCALL test_2(PixPoint*, u32) {
    if (powered())
        requests.test_2 = 1;
    return 0;
}
u32 KCALL dh_test(PixPoint*, u32) {
    if (powered())
        requests.dh_test = 1;
    return 0;
}
u32 KCALL dh_down(PixPoint*, u32) {
    ac.ralt_dh = ac.ralt_dh <= kDhStep ? 0 : ac.ralt_dh - kDhStep;
    return 0;
}
u32 KCALL dh_up(PixPoint*, u32) {
    ac.ralt_dh = ac.ralt_dh >= kDhTop - kDhStep ? kDhTop : ac.ralt_dh + kDhStep;
    return 0;
}

}  // namespace kestrane::ralt

KESTRANE_GAUGE(ralt, ralt::layout(gauge("kestrane ralt_jm47", 210, ralt::update), ralt::dh_bug, ralt::height))
