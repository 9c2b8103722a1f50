// kestrane fuel_lowpress_lh_jm47: left fuel low-pressure light and its test
// push-button.
#include "frame/gauge.h"
#include "systems/engines/fuel_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::fuel;

u32 KCALL test(PixPoint*, u32) {
    lowpress_test(ac.fuel_lowpress_test_lh, ac.fuel_press_ind_lh, ac.fuel_hp_cock_lh);
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    lowpress_light(g, ac.fuel_press_ind_lh, ac.fuel_hp_cock_lh, ac.fuel_lowpress_test_lh,
                   ac.fuel_lowpress_light_lh);
}
}  // namespace

KESTRANE_GAUGE(fuel_lowpress_lh, gauge("kestrane fuel_lowpress_lh_jm47", 37, update)
                                     .elements(image(9488, 0x4001),            // e0 background
                                               icon(9808, 12, 8, 0x40000003))  // e1 low pressure
                                     .mouse(click(9, 34, 20, 20, kCursorHand, test)))
