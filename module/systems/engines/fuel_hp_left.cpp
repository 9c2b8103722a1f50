// kestrane fuel_hp_left_jm47: HP fuel cock lever of engine 1. Opens the host's
// engine fuel only with the LP cock open too; shuts it whenever the HP cock is.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar fuel_lever = token(560);

u32 KCALL toggle(PixPoint*, u32) {
    ac.fuel_hp_cock_lh = ac.fuel_hp_cock_lh == 1 ? 0 : 1;
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool open = ac.fuel_hp_cock_lh == 1;
    show(g, 1, open);
    show(g, 2, !open);
    const bool fuel_on = host::read(fuel_lever) >= 0.5;
    if (open) {
        if (!fuel_on && ac.fuel_bp_cock_lh == 1)
            host::send_event(65983);
    } else if (fuel_on) {
        host::send_event(65987);
    }
}
}  // namespace

KESTRANE_GAUGE(fuel_hp_left, gauge("kestrane fuel_hp_left_jm47", 62, update)
                                 .elements(image(5968, 0x4001),             // e0 background
                                           icon(5984, 29, 0, 0x40000003),   // e1 lever open
                                           icon(5984, 29, 44, 0x40000003))  // e2 lever shut
                                 .mouse(click(0, 38, 62, 38, kCursorHand, toggle)))
