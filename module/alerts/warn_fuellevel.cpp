// kestrane warn_fuellevel_jm47: either main tank's low-level light. A click
// acknowledges.
#include "alerts/warning.h"

namespace {
using namespace kestrane;

constexpr u8 kCode = 7;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    u8& state = ac.warn_fuellevel_state;
    if (ac.fuel_lowlvl_light_lh == 1 || ac.fuel_lowlvl_light_rh == 1) {
        if (state != warn::kAcknowledged) {
            state = warn::kLit;
            warn::raise(ac.warn_alert_fuellevel);
        }
    } else {
        state = warn::kOff;
    }
    const bool lit = state == warn::kLit;
    show(g, 0, lit && ac.elec_dc_main_bus == 1);
    warn::rearm(ac.warn_alert_fuellevel, lit);
    if (!lit)
        warn::release_code(kCode);
}

u32 KCALL acknowledge(PixPoint*, u32) {
    warn::acknowledge(ac.warn_fuellevel_state);
    warn::release_code(kCode);
    return 0;
}
}  // namespace

KESTRANE_GAUGE(warn_fuellevel, gauge("kestrane warn_fuellevel_jm47", 80, update)
                                   .elements(image(22800, warn::kLightFlags))  // e0 the light
                                   .mouse(click(0, 0, warn::kBoxW, warn::kBoxH, kCursorHand, acknowledge)))
