// kestrane warn_lhengfire_jm47 and warn_rhengfire_jm47: engine fire lights,
// their test and the fire bell. The left light's callback also handles an
// engine 1 fire: throttle 1 pulled back, the engine kept shut down once
// extinguished, restored otherwise.
#include "alerts/warning.h"

namespace {
using namespace kestrane;

// Bell states.
constexpr u8 kBellOff = 0, kBellRinging = 1, kBellSilenced = 2;

struct FireLight {
    u8& detected;  // fire detected on this engine
    u8& lit;
    u8& test;
    u8& other_test;
    u8& other_lit;
};

constexpr FireLight kLeft{ac.warn_eng1_fire, ac.warn_lhengfire_lit, ac.warn_lhengfire_test,
                          ac.warn_rhengfire_test, ac.warn_rhengfire_lit};
constexpr FireLight kRight{ac.warn_eng2_fire, ac.warn_rhengfire_lit, ac.warn_rhengfire_test,
                           ac.warn_lhengfire_test, ac.warn_lhengfire_lit};

ModuleVar eng1_shut_down = token(564), throttle_1 = token(128), throttle_2 = token(163);

constexpr u32 kThrottle1Set = 65820;
constexpr u32 kEng1ShutdownToggle = 66313;

void engine1_fire() {
    const f64 shut_down = host::read(eng1_shut_down);
    const f64 lever_1 = host::read(throttle_1);
    const f64 lever_2 = host::read(throttle_2);
    if (ac.eng1_fire == 1) {
        ac.warn_eng1_fire = 1;
        // Throttle 1 back to 35 % of throttle 2.
        const i32 target = trunc_to<i32>(lever_2 * 0.35);
        ac.warn_eng1_throttle_target = target;
        if (lever_1 < static_cast<f64>(target) - 2.0 || lever_1 > static_cast<f64>(target) + 2.0)
            host::send_event(kThrottle1Set, static_cast<u32>(target));
        return;
    }
    ac.warn_eng1_fire = 0;
    if (ac.warn_eng1_ext_fired == 1) {
        if (shut_down == 0.0)
            host::send_event(kEng1ShutdownToggle, 0);
    } else if (shut_down == 1.0 && ac.fail_eng1_entry == 0) {
        host::send_event(kEng1ShutdownToggle, 0);
    }
}

void light_cycle(GaugeHeader* g, const FireLight& s) {
    const bool ess = ac.elec_ess_bus == 1;
    s.lit = s.detected == 1 && ess;
    if (s.lit && ac.warn_fire_bell == kBellOff)
        ac.warn_fire_bell = kBellRinging;
    show(g, 0, (s.lit || s.test == 1) && ess);
}

void KCALL update_left(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    engine1_fire();
    light_cycle(g, kLeft);
    if (ac.warn_fire_bell == kBellRinging && ac.warn_fire_bell_cut == 1)
        ac.warn_fire_bell = kBellSilenced;
    if (ac.warn_lhengfire_lit != 1 && ac.warn_rhengfire_lit != 1 && ac.warn_lhengfire_test != 1 &&
        ac.warn_rhengfire_test != 1) {
        ac.warn_fire_bell = kBellOff;
        ac.warn_fire_bell_cut = 0;
    }
}

void KCALL update_right(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        light_cycle(g, kRight);
}

// Out of a fire: a click tests the light (or silences a bell already on); a
// second click ends the test. On a fire: a click silences the bell.
template <const FireLight& S>
u32 KCALL click_light(PixPoint*, u32) {
    if (S.other_test == 1)
        return 0;
    if (S.test != 1 && S.lit != 1) {
        if (ac.warn_fire_bell == kBellOff) {
            ac.warn_fire_bell = kBellRinging;
            S.test = 1;
        } else {
            ac.warn_fire_bell = kBellSilenced;
        }
    } else if (S.test == 1) {
        S.test = 0;
    } else if (ac.warn_fire_bell == kBellRinging) {
        ac.warn_fire_bell_cut = 1;
    }
    return 0;
}
}  // namespace

KESTRANE_GAUGE(warn_lhengfire,
               gauge("kestrane warn_lhengfire_jm47", 80, update_left)
                   .elements(image(22880, warn::kLightFlags))  // e0 the light
                   .mouse(click(0, 0, warn::kBoxW, warn::kBoxH, kCursorHand, click_light<kLeft>)))

KESTRANE_GAUGE(warn_rhengfire,
               gauge("kestrane warn_rhengfire_jm47", 83, update_right)
                   .elements(image(22896, warn::kLightFlags))  // e0 the light
                   .mouse(click(0, 0, warn::kBoxW, warn::kBoxH, kCursorHand, click_light<kRight>)))
