// kestrane pressu_vsi_jm47: cabin vertical speed indicator. Computes the
// differential-pressure limiter mode and the cabin vertical speed the cabin
// altimeter integrates.
#include "systems/air/air_rules.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1), on_ground = token(60), altitude = token(74), main_exit = token(868);
i32 limiter_end = 0;
u8 limiter_running = 0;

constexpr f64 kLimiterTicks = 36.0;
constexpr f64 kMaxDp = 8.08;  // psi
constexpr f64 kNegDp = 0.08;
constexpr i16 kUnpressurizedRate = 500;

// Starts the limiter timer; true once it has run out (the timer then stops).
bool limiter_elapsed(f64 now) {
    if (limiter_running == 0) {
        limiter_end = trunc_to<i32>(now + kLimiterTicks);
        limiter_running = 1;
    }
    if (now > static_cast<f64>(limiter_end)) {
        limiter_running = 0;
        return true;
    }
    return false;
}

void limiter_cycle(bool supply, f64 now) {
    const f64 dp = ac.air_cabin_dp;
    if (!supply || dp <= kMaxDp) {
        if (!supply || dp >= kNegDp) {
            ac.air_press_mode = 0;
            limiter_running = 0;
        } else if (limiter_elapsed(now)) {
            ac.air_press_mode = dp < 0.1 ? 3 : dp <= 0.07 ? 0 : 4;
        }
    } else if (limiter_elapsed(now)) {
        ac.air_press_mode = dp > 8.11 ? 1 : dp > 8.09 ? 2 : 0;
    }
}

// Follows the aircraft beyond the selected rate, within 2000 ft/min.
i16 follow_aircraft(i16 selected_rate, bool climbing) {
    const f64 vs = ac.adc_vs;
    if (vs > 2000.0)
        return 2000;
    if (vs < -2000.0)
        return -2000;
    if (climbing)
        return vs <= selected_rate ? selected_rate : trunc_to<i16>(vs);
    return vs >= -selected_rate ? static_cast<i16>(-selected_rate) : trunc_to<i16>(vs);
}

i16 controlled_rate() {
    const i16 rate = ac.air_cabin_rate_sel;
    switch (ac.air_press_mode) {
        case 0: {
            const f64 gap = static_cast<f64>(ac.air_cabin_alt) - ac.air_cabin_alt_sel;
            if (gap > 1.0)
                return static_cast<i16>(-rate);
            if (gap < -1.0)
                return rate;
            return 0;
        }
        case 1:
            return follow_aircraft(rate, true);
        case 3:
            return follow_aircraft(rate, false);
        default:
            return 0;
    }
}

void update_cycle() {
    const f64 now = host::read(tick);
    const bool supply = air::bleed_supply();
    limiter_cycle(supply, now);

    if (host::read(on_ground) == 0.0 && host::read(main_exit) == 0.0 && supply) {
        ac.air_cabin_vs = controlled_rate();
        return;
    }
    // unpressurized: a pressurized cabin returns to the aircraft altitude
    const f64 gap = static_cast<f64>(ac.air_cabin_alt) - host::read(altitude);
    if (ac.air_pressurized == 1 && gap > 1.0)
        ac.air_cabin_vs = -kUnpressurizedRate;
    else if (ac.air_pressurized == 1 && gap < -1.0)
        ac.air_cabin_vs = kUnpressurizedRate;
    else
        ac.air_cabin_vs = 0;
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        update_cycle();
}

f64 KCALL vs_needle(Element*) {
    return clamp_back(ac.air_cabin_vs, -2000.0, 2000.0);
}

NeedlePoint vs_scale[] = {{10, 66, -2000, 0}, {69, 10, 0, 0}, {128, 66, 2000, 0}};
}  // namespace

KESTRANE_GAUGE(pressu_vsi, gauge("kestrane pressu_vsi_jm47", 137, update)
                               .elements(image(12608, 0x4001),  // e0
                                         needle(12592, 69, 66, 4, 4, 0x4003, vs_needle,
                                                vs_scale)))  // e1 cabin vertical speed
