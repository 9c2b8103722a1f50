// kestrane fuel_bp_left_jm47: LP fuel cock lever of engine 1. Shutting it cuts
// the host's engine fuel; opening it is left to the HP cock.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar fuel_lever = token(560);

u32 KCALL open_cock(PixPoint*, u32) {
    ac.fuel_bp_cock_lh = 1;
    return 0;
}
u32 KCALL shut_cock(PixPoint*, u32) {
    ac.fuel_bp_cock_lh = 0;
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    // one lever: the open lever is the gauge's background
    const bool is_open = ac.fuel_bp_cock_lh == 1;
    show(g, 0, is_open);
    show(g, 1, !is_open);
    if (!is_open && host::read(fuel_lever) >= 0.5)
        host::send_event(65987);
}
}  // namespace

KESTRANE_GAUGE(fuel_bp_left, gauge("kestrane fuel_bp_left_jm47", 35, update)
                                 .elements(image(8224, 0x4001),             // e0 lever open
                                           icon(8240, 0, 225, 0x40000003))  // e1 lever shut
                                 .mouse(click(0, 0, 35, 47, kCursorHand, open_cock),
                                        click(0, 225, 35, 47, kCursorHand, shut_cock)))
