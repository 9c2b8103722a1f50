// kestrane airductemp_cockpit_jm47, airductemp_cabin_jm47 (supply-duct
// temperature) and aircondtemp_cockpit_jm47, aircondtemp_cabin_jm47 (zone
// temperature): one needle each, dark without the essential bus.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

struct Indicator {
    f32& source;
    f64& shown;
};

f64 duct_ckpt = 0.0, duct_cabin = 0.0, zone_ckpt = 0.0, zone_cabin = 0.0;

constexpr Indicator kDuctCkpt{ac.air_duct_temp_ckpt, duct_ckpt};
constexpr Indicator kDuctCabin{ac.air_duct_temp_cabin, duct_cabin};
constexpr Indicator kZoneCkpt{ac.air_cond_temp_ckpt, zone_ckpt};
constexpr Indicator kZoneCabin{ac.air_cond_temp_cabin, zone_cabin};

template <const Indicator& I>
void KCALL duct_update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.elec_ess_bus != 1) {
        I.shown = -70.0;
        return;
    }
    i16 v = trunc_to<i16>(I.source);
    I.shown = v < -70 ? -70 : v > 150 ? 150 : v;
}
template <const Indicator& I>
void KCALL zone_update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (ac.elec_ess_bus != 1) {
        I.shown = 0.0;
        return;
    }
    I.shown = static_cast<f32>(I.source);
    clamp_back(I.shown, 0.0, 40.0);
}

template <const Indicator& I>
f64 KCALL duct_needle(Element*) {
    return clamp_back(I.shown, -70.0, 150.0);
}
template <const Indicator& I>
f64 KCALL zone_needle(Element*) {
    return clamp_back(I.shown, 0.0, 40.0);
}

NeedlePoint duct_scale[] = {{10, 60, -70, 0}, {50, 10, 40, 0}, {90, 60, 150, 0}};
NeedlePoint zone_scale[] = {{10, 60, 0, 0}, {50, 10, 20, 0}, {90, 60, 40, 0}};
}  // namespace

// clang-format off
KESTRANE_GAUGE(airductemp_cockpit,
    gauge("kestrane airductemp_cockpit_jm47", 100, duct_update<kDuctCkpt>)
        .elements(image(13440, 0x4001),                                                  // e0
                  needle(13360, 50, 45, 4, 4, 0x4003, duct_needle<kDuctCkpt>, duct_scale),  // e1 duct temperature
                  image(13952, 0x4003, 8, 4)))                                           // e2

KESTRANE_GAUGE(airductemp_cabin,
    gauge("kestrane airductemp_cabin_jm47", 100, duct_update<kDuctCabin>)
        .elements(image(13440, 0x4001),                                                   // e0
                  needle(13360, 50, 45, 4, 4, 0x4003, duct_needle<kDuctCabin>, duct_scale),  // e1 duct temperature
                  image(13952, 0x4003, 8, 4)))                                            // e2

KESTRANE_GAUGE(aircondtemp_cockpit,
    gauge("kestrane aircondtemp_cockpit_jm47", 100, zone_update<kZoneCkpt>)
        .elements(image(13424, 0x4001),                                                  // e0
                  needle(13360, 50, 44, 4, 4, 0x4003, zone_needle<kZoneCkpt>, zone_scale)))  // e1 zone temperature

KESTRANE_GAUGE(aircondtemp_cabin,
    gauge("kestrane aircondtemp_cabin_jm47", 100, zone_update<kZoneCabin>)
        .elements(image(13424, 0x4001),                                                   // e0
                  needle(13360, 50, 44, 4, 4, 0x4003, zone_needle<kZoneCabin>, zone_scale)))  // e1 zone temperature
// clang-format on
