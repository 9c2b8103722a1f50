// kestrane taxilights_jm47: taxi-light switch, two ganged levers. The host's
// taxi lights follow it while the generator bus is powered.
#include "frame/follow.h"

namespace {
using namespace kestrane;

ModuleVar taxi_lights = token(369);

template <u8 Position>
u32 KCALL taxi_sw(PixPoint*, u32) {
    return set_switch(ac.light_taxi_sw, Position), 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool on = ac.light_taxi_sw == 1;
    show(g, 1, !on);
    show(g, 2, on);
    show(g, 3, !on);
    show(g, 4, on);
    follow_toggle(taxi_lights, on && ac.elec_gen_bus == 1, 66240);
}
}  // namespace

KESTRANE_GAUGE(taxilights, gauge("kestrane taxilights_jm47", 98, update)
                               .elements(image(41424, 0x4001),             // e0 background
                                         icon(10064, 16, 81, 0x40000003),  // e1 left lever off
                                         icon(10048, 16, 92, 0x40000003),  // e2 left lever on
                                         icon(10064, 53, 81, 0x40000003),  // e3 right lever off
                                         icon(10048, 53, 92, 0x40000003))  // e4 right lever on
                               .mouse(click(6, 97, 68, 21, kCursorUp, taxi_sw<1>),
                                      click(6, 76, 68, 21, kCursorDown, taxi_sw<0>)))
