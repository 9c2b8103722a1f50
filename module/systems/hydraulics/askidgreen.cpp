// kestrane askidgreen_jm47: green anti-skid light, in flight with the gear
// handle down and the green circuit up, out once both engines are at high
// EPR. A click tests it for 36 cycles.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;

ModuleVar cycle = token(1), on_ground = token(60), gear_handle = token(331);

u8 test_latch, timing;
u32 deadline;

u32 KCALL press(PixPoint*, u32) {
    test_latch = 1;
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool ess = hyd::ess_bus();
    const bool high_epr = ac.eng1_epr_disp > 130 && ac.eng2_epr_disp > 130;
    bool lit = host::read(on_ground) == 0.0 && host::read(gear_handle) > 0.0 && ess &&
               ac.hyd_green_press >= 1401 && !high_epr;
    if (test_latch && ess) {
        const f64 now = host::read(cycle);
        if (!timing) {
            deadline = trunc_to<u32>(now + 36);
            timing = 1;
        }
        if (now < deadline) {
            lit = true;
        } else {
            test_latch = 0;
            timing = 0;
            deadline = 0;
        }
    }
    show(g, 0, lit);
}
}  // namespace

KESTRANE_GAUGE(askidgreen, gauge("kestrane askidgreen_jm47", 15, update)
                               .elements(image(43056, 0x40004001))  // e0 the light
                               .mouse(click(0, 0, 15, 15, kCursorHand, press)))
