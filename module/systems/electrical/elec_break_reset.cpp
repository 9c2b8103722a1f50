// kestrane elec_break_reset_jm47: generator breaker reset. Each light keeps a
// generator failure shown until the spring-loaded reset switch is held to its
// side.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

i8 reset_sw;  // negative held left, positive held right, springs back to 0
u8 test_latch_1, test_latch_2;
u8 memory_1, memory_2;  // 2 once a failure has been shown

u32 KCALL hold_left(PixPoint*, u32) {
    if (reset_sw == 0)
        reset_sw = -10;
    else if (reset_sw >= -10 && reset_sw < 0)
        reset_sw = static_cast<i8>(reset_sw - 2);
    return 0;
}
u32 KCALL hold_right(PixPoint*, u32) {
    if (reset_sw == 0)
        reset_sw = 10;
    else if (reset_sw > 0 && reset_sw <= 10)
        reset_sw = static_cast<i8>(reset_sw + 2);
    return 0;
}
u32 KCALL test_1(PixPoint*, u32) {
    test_latch_1 = 1;
    return 0;
}
u32 KCALL test_2(PixPoint*, u32) {
    test_latch_2 = 1;
    return 0;
}

void reset(u8& latch, u8& memory) {
    latch = 0;
    memory = 0;
    ac.elec_fault_light = 0;
}

bool light(u8 latch, u8 failed, u8& memory) {
    if (ac.elec_ess_bus != 1)
        return false;
    if (failed == 1) {
        memory = 2;
        ac.elec_fault_light = 1;
    }
    return latch == 1 || failed == 1 || memory == 2;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (reset_sw < 0)
        ++reset_sw;
    if (reset_sw > 0)
        --reset_sw;
    if (reset_sw < 0)
        reset(test_latch_1, memory_1);
    if (reset_sw > 0)
        reset(test_latch_2, memory_2);
    const bool lit_1 = light(test_latch_1, ac.elec_gen1_failed, memory_1);
    const bool lit_2 = light(test_latch_2, ac.elec_gen2_failed, memory_2);

    show(g, 1, reset_sw < 0);
    show(g, 2, reset_sw == 0);
    show(g, 3, reset_sw > 0);
    show(g, 4, lit_1);
    show(g, 5, lit_2);
}
}  // namespace

KESTRANE_GAUGE(elec_break_reset, gauge("kestrane elec_break_reset_jm47", 245, update)
                                     .elements(image(26336, 0x4001),                 // e0 background
                                               icon(art(21, 1), 73, 6, 0x40000003),  // e1 reset switch left
                                               icon(art(21, 2), 73, 6, 0x40000003),  // e2 reset switch centre
                                               icon(art(21, 3), 73, 6, 0x40000003),  // e3 reset switch right
                                               icon(art(21, 4), 3, 18, 0x40000003),  // e4 generator 1 light
                                               icon(art(21, 4), 206, 18, 0x40000003))  // e5 generator 2 light
                                     .mouse(repeat(73, 6, 45, 45, kCursorHand, hold_left),
                                            repeat(118, 6, 45, 45, kCursorHand, hold_right),
                                            click(3, 18, 30, 30, kCursorHand, test_1),
                                            click(206, 18, 30, 30, kCursorHand, test_2)))
