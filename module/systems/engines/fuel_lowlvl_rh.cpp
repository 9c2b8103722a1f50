// kestrane fuel_lowlvl_rh_jm47: right main tank low-level light and its test
// push-button.
#include "frame/gauge.h"
#include "systems/engines/fuel_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::fuel;

u32 KCALL test(PixPoint*, u32) {
    lowlvl_test(ac.fuel_lowlvl_test_rh, ac.fuel_qty_main_rh);
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    lowlvl_light(g, ac.fuel_qty_main_rh, ac.fuel_lowlvl_test_rh, ac.fuel_lowlvl_light_rh);
}
}  // namespace

KESTRANE_GAUGE(fuel_lowlvl_rh, gauge("kestrane fuel_lowlvl_rh_jm47", 37, update)
                                   .elements(image(9488, 0x4001),            // e0 background
                                             icon(9776, 12, 8, 0x40000003))  // e1 low level
                                   .mouse(click(9, 34, 20, 20, kCursorHand, test)))
