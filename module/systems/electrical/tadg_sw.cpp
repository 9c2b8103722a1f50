// kestrane tadg_sw_jm47: TADG switch and TADG-off light. The TADG runs on the
// essential bus or either AC bus; while it runs it holds the host's heading
// reference by sending its event whenever token 85 reaches +/-50.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar tadg_drift = token(85);
constexpr u32 kTadgEvent = 0x10020;

u32 KCALL tadg_off(PixPoint*, u32) {
    return set_switch(ac.elec_tadg_sw, 0), 0;
}
u32 KCALL tadg_on(PixPoint*, u32) {
    if (set_switch(ac.elec_tadg_sw, 1))
        sound::cachemetal();
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool ess = ac.elec_ess_bus == 1;
    if (ac.elec_tadg_sw == 1)
        ac.elec_tadg_on = ess || ac.elec_ac_bus_1 == 1 || ac.elec_ac_bus_2 == 1;
    else
        ac.elec_tadg_on = 0;
    if (ac.elec_tadg_on == 1) {
        const f64 drift = host::read(tadg_drift);
        if (drift >= 50.0 || drift <= -50.0)
            host::send_event(kTadgEvent, 0);
    }
    show(g, 1, ac.elec_tadg_sw != 1);
    show(g, 2, ac.elec_tadg_sw == 1);
    show(g, 3, ac.elec_tadg_on == 0 && ess);
}
}  // namespace

KESTRANE_GAUGE(tadg_sw, gauge("kestrane tadg_sw_jm47", 97, update)
                            .elements(image(26864, 0x4001),             // e0
                                      icon(32912, 0, 0, 0x40000003),    // e1 off
                                      icon(32928, 0, 0, 0x40000003),    // e2 on
                                      icon(32944, 30, 80, 0x40000003))  // e3 TADG off light
                            .mouse(click(0, 0, 48, 77, kCursorHand, tadg_off),
                                   click(50, 0, 48, 77, kCursorHand, tadg_on)))
