// kestrane deice_eng_light_jm47: the ICE light. Icing conditions are a TAT
// between -5 and 2 degrees in flight between 500 and 5000 m. In them the
// light comes on while an engine's de-icing is cold, and goes out 400 ticks
// after de-icing becomes active; the ice warning goes to the central warning
// panel while an engine's de-icing switch is off.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1), on_ground = token(60), altitude_m = token(73), tat_256 = token(350);

constexpr i32 kClearTicks = 400;

i32 clear_end_tick = 0;
u8 clear_timing = 0;

void ice_cycle(GaugeHeader* g) {
    const f64 tat = host::read(tat_256) * 256.0;
    const f64 alt = host::read(altitude_m);
    const f64 ground = host::read(on_ground);
    ac.ice_conditions = tat > -5.0 && tat <= 2.0 && alt > 500.0 && alt < 5000.0 && ground == 0.0;

    const bool powered = ac.elec_ess_bus == 1;
    if (ac.ice_conditions == 1 && powered) {
        if (ac.ice_eng_a_lh == 0 || ac.ice_eng_a_rh == 0)
            ac.ice_light = 1;
        ac.ice_warning = ac.ice_eng_sw_a_lh == 0 || ac.ice_eng_sw_a_rh == 0;
    } else {
        ac.ice_warning = 0;
        if (tat >= 3.0 || is_on(ground))
            ac.ice_light = 0;
    }

    if (ac.ice_light == 0)
        ac.ice_warning = 0;
    show(g, 1, powered && ac.ice_light == 1);

    // active de-icing puts the light out after a while (seen from the next
    // cycle, which lights it again while the conditions last)
    const f64 now = host::read(tick);
    if (ac.ice_light == 1 && clear_timing == 0 && (ac.ice_eng_a_lh == 100 || ac.ice_eng_a_rh == 100)) {
        clear_end_tick = trunc_to<i32>(now + kClearTicks);
        clear_timing = 1;
    } else if (clear_timing == 1 && now >= clear_end_tick) {
        ac.ice_light = 0;
        clear_timing = 0;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        ice_cycle(g);
}
}  // namespace

KESTRANE_GAUGE(deice_eng_light, gauge("kestrane deice_eng_light_jm47", 27, update)
                                    .elements(image(10336, 0x4001),            // e0 background
                                              icon(12320, 8, 61, 0x40000003))  // e1 ICE light
)
