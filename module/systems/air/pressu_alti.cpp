// kestrane pressu_alti_jm47: cabin altimeter. Integrates the cabin altitude
// from the cabin vertical speed and computes the differential pressure;
// cabin altitude, aircraft altitude and differential-pressure needles.
#include "systems/air/air_rules.h"

namespace {
using namespace kestrane;

ModuleVar on_ground = token(60), altitude = token(74), baro_altitude = token(75), main_exit = token(868);
f32 aircraft_alt = 0.0f;
u16 dp_needle = 0;  // psi x 1000

constexpr f64 kFeetPerCycle = 0.001;  // of the cabin vertical speed

void climb_cabin() {
    ac.air_cabin_alt = trunc_to<f32>(static_cast<f64>(ac.air_cabin_alt) + ac.air_cabin_vs * kFeetPerCycle);
}

void update_cycle() {
    aircraft_alt = trunc_to<f32>(host::read(altitude));
    host::read(baro_altitude);
    const f64 exit = host::read(main_exit);
    const f64 ground = host::read(on_ground);
    const f64 alt = aircraft_alt;

    if (air::bleed_supply() && ac.elec_ess_bus == 1 && exit == 0.0 && ground == 0.0) {
        ac.air_pressurized = 1;
        if (ac.air_press_mode == 0) {
            if (ac.air_cabin_alt != trunc_to<f32>(ac.air_cabin_alt_sel))
                climb_cabin();
        } else if (ac.adc_vs != 0.0) {
            climb_cabin();
        }
    } else {
        if (exit > 0.0)
            ac.air_pressurized = 0;
        const f64 gap = static_cast<f64>(ac.air_cabin_alt) - alt;
        if (ac.air_pressurized == 1 && (gap > 1.0 || gap < -1.0)) {
            climb_cabin();
        } else {
            ac.air_cabin_alt = aircraft_alt;
            ac.air_pressurized = 0;
        }
    }

    if (ac.elec_ess_bus == 1) {
        const f64 diff = alt - static_cast<f64>(ac.air_cabin_alt);
        const f64 k = alt <= 21000.0 ? 0.000381 : 0.000381 - (alt - 21000.0) * 6.95e-9;
        ac.air_cabin_dp = trunc_to<f32>(diff * k);
    } else {
        ac.air_cabin_dp = 0.0f;
    }
    dp_needle = ac.air_cabin_dp >= 0.0f ? trunc_to<u16>(static_cast<f64>(ac.air_cabin_dp) * 1000.0) : 0;
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        update_cycle();
}

// The cabin altitude is not clamped back: the model owns it.
f64 KCALL cabin_needle(Element*) {
    const f64 v = ac.air_cabin_alt;
    return v < -2000.0 ? -2000.0 : v > 60000.0 ? 60000.0 : v;
}
f64 KCALL aircraft_needle(Element*) {
    return clamp_back(aircraft_alt, -2000.0, 60000.0);
}
f64 KCALL dp_needle_value(Element*) {
    return clamp_back(dp_needle, 0.0, 10000.0);
}

NeedlePoint alt_scale[] = {{99, 10, 0, 0}, {180, 98, 10000, 0}, {99, 186, 20000, 0}, {18, 98, 30000, 0}};
NeedlePoint dp_scale[] = {{30, 150, 0, 0}, {30, 40, 5000, 0}, {170, 40, 10000, 0}};
}  // namespace

// clang-format off
KESTRANE_GAUGE(pressu_alti,
    gauge("kestrane pressu_alti_jm47", 198, update)
        .elements(image(12672, 0x4001),                                             // e0
                  needle(12656, 99, 98, 4, 4, 0x4003, cabin_needle, alt_scale),     // e1 cabin altitude
                  needle(12640, 99, 98, 4, 4, 0x4003, aircraft_needle, alt_scale),  // e2 aircraft altitude
                  needle(12624, 99, 98, 4, 4, 0x4003, dp_needle_value, dp_scale)))  // e3 differential pressure
// clang-format on
