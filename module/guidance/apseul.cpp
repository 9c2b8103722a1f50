// kestrane apseul_jm47: the second autopilot controller. Same layout and
// buttons as kestrane ap_jm47, but its AP button switches the host's own yaw
// coordination and its callback only lights the panel; no law runs here.
#include "guidance/ap_laws.h"

namespace {
using namespace kestrane;
using namespace kestrane::ap;

ap::Wheel wheel{};
constexpr ap::Panel kSecond{.wheel = wheel, .host_yaw_coord = true};

ModuleVar t_tick = token(1);
ModuleVar t_on_ground = token(60);

void lights(GaugeHeader* g, bool engaged, f64 alt_hold_host) {
    show(g, kLightAp, engaged && ready());
    if (pitch_law_applies(host::read(t_on_ground))) {
        show(g, kLightAltFine, false);
        show(g, kLightAlt, false);
    } else if (ac.ap_alt_hold_fine == 1 && ready()) {
        show(g, kLightAltFine, true);
    } else if (ac.ap_alt_hold == 1 && ready()) {
        show(g, kLightAlt, true);
    }
    if (ac.ap_alt_hold_fine == 0)
        show(g, kLightAltFine, false);
    if (ac.ap_alt_hold == 0)
        show(g, kLightAlt, false);
    if (alt_hold_host == 0.0) {
        show(g, kLightAltFine, false);
        show(g, kLightAlt, false);
    }
    show(g, kLightHdg, engaged && ac.ap_hdg_mode == 1 && ready());
    show(g, kLightNav, engaged && ac.ap_nav_mode > 0 && ready());
    show(g, kLightGs, engaged && ac.ap_gs_mode == 1 && ready());
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 host_ap = host::read(t_engaged);
    lights(g, is_on(host_ap), host::read(t_alt_hold));
    if (host_ap == 0.0) {
        hide_lights(g);
        wheel.up_req = wheel.down_req = 0;  // the clicks only: a roll runs out
    }
    wheel_cycle(g, wheel, host::read(t_tick));
}
}  // namespace

KESTRANE_GAUGE(apseul, ap::controller<kSecond>("kestrane apseul_jm47", update, 41072))
