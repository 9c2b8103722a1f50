// kestrane warn_hydlvl_jm47: green or blue reservoir level low, and the
// hydraulic panel's warning lights. A click acknowledges them all.
#include "alerts/warning.h"

namespace {
using namespace kestrane;

constexpr u8 kCode = 10;

void level_state(u8& state, u8 level_low) {
    if (level_low == 0)
        state = warn::kOff;
    else if (ac.elec_dc_main_bus == 1 && state == warn::kOff)
        state = warn::kLit;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    level_state(ac.warn_hydlvl_green, ac.hyd_green_level_low);
    level_state(ac.warn_hydlvl_blue, ac.hyd_blue_level_low);
    const bool shown = ac.warn_hydlvl_green == warn::kLit || ac.warn_hydlvl_blue == warn::kLit ||
                       ac.hyd_warn_light_1 == 1 || ac.hyd_warn_light_2 == 1;
    const bool active = shown || ac.hyd_warn_light_3 == 1 || ac.hyd_warn_light_4 == 1;
    if (active)
        warn::raise(ac.warn_alert_hydlvl);
    show(g, 0, shown && ac.elec_dc_main_bus == 1);
    if (warn::rearm(ac.warn_alert_hydlvl, active))
        warn::release_code(kCode);
}

u32 KCALL acknowledge(PixPoint*, u32) {
    warn::acknowledge(ac.warn_hydlvl_green);
    warn::acknowledge(ac.warn_hydlvl_blue);
    warn::acknowledge(ac.hyd_warn_light_1);
    warn::acknowledge(ac.hyd_warn_light_2);
    warn::release_code(kCode);
    return 0;
}
}  // namespace

KESTRANE_GAUGE(warn_hydlvl, gauge("kestrane warn_hydlvl_jm47", 80, update)
                                .elements(image(22784, warn::kLightFlags))  // e0 the light
                                .mouse(click(0, 0, warn::kBoxW, warn::kBoxH, kCursorHand, acknowledge)))
