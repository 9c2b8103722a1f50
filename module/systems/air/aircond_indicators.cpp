// kestrane airductemp_cockpit_jm47, airductemp_cabin_jm47 (supply-duct
// temperature) and aircondtemp_cockpit_jm47, aircondtemp_cabin_jm47 (zone
// temperature): one needle each, dark without the essential bus.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

struct DuctIndicator {
    f32& source;
    i16& shown;  // whole degrees
};
struct ZoneIndicator {
    f32& source;
    f32& shown;
};

i16 duct_ckpt = 0, duct_cabin = 0;
f32 zone_ckpt = 0.0f, zone_cabin = 0.0f;

constexpr DuctIndicator kDuctCkpt{ac.air_duct_temp_ckpt, duct_ckpt};
constexpr DuctIndicator kDuctCabin{ac.air_duct_temp_cabin, duct_cabin};
constexpr ZoneIndicator kZoneCkpt{ac.air_cond_temp_ckpt, zone_ckpt};
constexpr ZoneIndicator kZoneCabin{ac.air_cond_temp_cabin, zone_cabin};

template <const DuctIndicator& I>
void KCALL duct_update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    I.shown = ac.elec_ess_bus == 1 ? trunc_to<i16>(I.source) : -70;
    clamp_back(I.shown, -70.0, 150.0);
}
template <const ZoneIndicator& I>
void KCALL zone_update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    I.shown = ac.elec_ess_bus == 1 ? I.source : 0.0f;
    clamp_back(I.shown, 0.0, 40.0);
}

template <const DuctIndicator& I>
f64 KCALL duct_needle(Element*) {
    return clamp_back(I.shown, -70.0, 150.0);
}
template <const ZoneIndicator& I>
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
                  icon(13952, 8, 4, 0x4003)))                                           // e2

KESTRANE_GAUGE(airductemp_cabin,
    gauge("kestrane airductemp_cabin_jm47", 100, duct_update<kDuctCabin>)
        .elements(image(13440, 0x4001),                                                   // e0
                  needle(13360, 50, 45, 4, 4, 0x4003, duct_needle<kDuctCabin>, duct_scale),  // e1 duct temperature
                  icon(13952, 8, 4, 0x4003)))                                            // e2

KESTRANE_GAUGE(aircondtemp_cockpit,
    gauge("kestrane aircondtemp_cockpit_jm47", 100, zone_update<kZoneCkpt>)
        .elements(image(13424, 0x4001),                                                  // e0
                  needle(13360, 50, 44, 4, 4, 0x4003, zone_needle<kZoneCkpt>, zone_scale)))  // e1 zone temperature

KESTRANE_GAUGE(aircondtemp_cabin,
    gauge("kestrane aircondtemp_cabin_jm47", 100, zone_update<kZoneCabin>)
        .elements(image(13424, 0x4001),                                                   // e0
                  needle(13360, 50, 44, 4, 4, 0x4003, zone_needle<kZoneCabin>, zone_scale)))  // e1 zone temperature
// clang-format on
