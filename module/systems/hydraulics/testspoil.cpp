// kestrane testspoil_jm47: spoiler test light. A press lights the lamp half a
// second later for a second and a half, on the ground with the essential bus.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar cycle = token(1), on_ground = token(60);

struct SpoilerTest {
    u8 requested;
    u32 lamp_on, lamp_off;  // host cycles; 0 until the test starts
};
SpoilerTest test;

u32 KCALL press(PixPoint*, u32) {
    test.requested = 1;
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    bool lit = false;
    if (test.requested && ac.elec_ess_bus == 1 && is_on(host::read(on_ground))) {
        const f64 now = host::read(cycle);
        if (test.lamp_off == 0) {
            test.lamp_on = trunc_to<u32>(now + 9);
            test.lamp_off = trunc_to<u32>(now + 36);
        }
        if (now >= test.lamp_off)
            test = {};
        else
            lit = now >= test.lamp_on;
    }
    show(g, 1, lit);
}
}  // namespace

KESTRANE_GAUGE(testspoil, gauge("kestrane testspoil_jm47", 116, update)
                              .elements(image(41024, 0x4001),            // e0
                                        icon(41025, 0, 32, 0x40000003))  // e1 lamp
                              .mouse(click(0, 32, 43, 29, kCursorHand, press)))
