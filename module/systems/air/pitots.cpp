// kestrane pitots_jm47: three probe-heat switches and five heat lights. The
// host's pitot heat follows switch 1 on the essential bus.
#include "frame/follow.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1);
ModuleVar pitot_heat = token(13), probe_ok = token(774), probe_fault = token(286);

constexpr i32 kProbe3Ticks = 180;  // 10 s

i32 probe3_end_tick = 0;
u8 probe3_timing = 0;

template <u8& Switch, u8 Position>
u32 KCALL probe_sw(PixPoint*, u32) {
    return set_switch(Switch, Position), 0;
}

void probe_lights(GaugeHeader* g) {
    const bool probes_ok = host::read(probe_ok) == 1.0 && trunc_to<i32>(host::read(probe_fault)) != 1;
    const bool heat_1 = ac.elec_ess_bus == 1 && host::read(pitot_heat) == 1.0 && probes_ok;
    show(g, 7, heat_1);
    show(g, 8, heat_1);
    const bool heat_2 = ac.elec_gen_bus == 1 && ac.ice_pitot_sw_2 == 1 && probes_ok;
    show(g, 9, heat_2);
    show(g, 10, heat_2);
    if (ac.elec_gen_bus == 1 && ac.ice_pitot_sw_3 == 1) {
        const f64 now = host::read(tick);
        if (probe3_timing == 0) {
            probe3_end_tick = trunc_to<i32>(now + kProbe3Ticks);
            probe3_timing = 1;
        }
        show(g, 11, now >= probe3_end_tick);
    } else {
        show(g, 11, false);
        probe3_timing = 0;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    show(g, 1, ac.ice_pitot_sw_1 == 1);
    show(g, 2, ac.ice_pitot_sw_1 != 1);
    show(g, 3, ac.ice_pitot_sw_2 == 1);
    show(g, 4, ac.ice_pitot_sw_2 != 1);
    show(g, 5, ac.ice_pitot_sw_3 == 1);
    show(g, 6, ac.ice_pitot_sw_3 != 1);
    follow(pitot_heat, ac.ice_pitot_sw_1 == 1 && ac.elec_ess_bus == 1, 66072, 66073);
    probe_lights(g);
}
}  // namespace

KESTRANE_GAUGE(pitots, gauge("kestrane pitots_jm47", 157, update)
                           .elements(image(41472, 0x4001),              // e0 background
                                     icon(10048, 32, 43, 0x40000003),   // e1 switch 1 on
                                     icon(10064, 32, 32, 0x40000003),   // e2 switch 1 off
                                     icon(10048, 131, 43, 0x40000003),  // e3 switch 2 on
                                     icon(10064, 131, 32, 0x40000003),  // e4 switch 2 off
                                     icon(10048, 97, 43, 0x40000003),   // e5 switch 3 on
                                     icon(10064, 97, 32, 0x40000003),   // e6 switch 3 off
                                     icon(10256, 35, 9, 0x40000003),    // e7 heat light, switch 1
                                     icon(10256, 64, 9, 0x40000003),    // e8 heat light, switch 1
                                     icon(10256, 97, 9, 0x40000003),    // e9 heat light, switch 2
                                     icon(10256, 126, 9, 0x40000003),   // e10 heat light, switch 2
                                     icon(10256, 64, 44, 0x40000003))   // e11 switch 3, after 10 s
                           .mouse(click(21, 47, 32, 21, kCursorUp, probe_sw<ac.ice_pitot_sw_1, 1>),
                                  click(21, 26, 32, 21, kCursorDown, probe_sw<ac.ice_pitot_sw_1, 0>),
                                  click(120, 47, 32, 21, kCursorUp, probe_sw<ac.ice_pitot_sw_2, 1>),
                                  click(120, 26, 32, 21, kCursorDown, probe_sw<ac.ice_pitot_sw_2, 0>),
                                  click(87, 47, 32, 21, kCursorUp, probe_sw<ac.ice_pitot_sw_3, 1>),
                                  click(87, 26, 32, 21, kCursorDown, probe_sw<ac.ice_pitot_sw_3, 0>)))
