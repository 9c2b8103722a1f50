// kestrane panelnight_jm47: the panel lighting overlay. Lighting needs DC
// bus 2 or the essential bus; each change toggles the lighting window twice.
// Without DC generation the host's cabin and panel lights are shed.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;

ModuleVar host_light_a = token(622), host_light_b = token(620);

constexpr u32 kToggleWindow = 66506;
constexpr u32 kLightWindow = 10090;

// Moves the lighting from state `from` to `to`, toggling the lighting window.
void step(u8 from, u8 to) {
    if (ac.light_panel_state != from)
        return;
    host::send_event(kToggleWindow, kLightWindow);
    ac.light_panel_state = to;
}

void panel_lighting(GaugeHeader* g) {
    const bool powered = ac.elec_dc_bus_2 == 1 || ac.elec_ess_bus == 1;
    if (ac.light_panel_state < 3 || !powered) {
        show(g, 0, false);
        step(1, 2);
        step(2, 0);
        step(5, 4);
        step(4, 3);  // still selected: comes back with power
        ac.light_panel_night = 0;
    } else {
        show(g, 0, true);
        step(3, 4);
        step(4, 5);
        ac.light_panel_night = 1;
    }
}

void shed_host_lights() {
    if (ac.elec_gen_bus != 0)
        return;
    if (is_on(host::read(host_light_a)))
        host::send_event(66377);
    if (is_on(host::read(host_light_b)))
        host::send_event(66376);
    if (is_on(host::calc("(A:Light cabin,bool)")))
        host::send_event(66579);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    panel_lighting(g);
    shed_host_lights();
}
}  // namespace

KESTRANE_GAUGE(panelnight, gauge("kestrane panelnight_jm47", 1279, update)
                               .elements(image(26672, 0x40004001)))  // e0 night overlay
