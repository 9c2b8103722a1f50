// kestrane elec_breaker_jm47: generator 1 and 2 switches under their guards,
// with a fault light each. Switching a failed generator off acknowledges the
// failure.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

u8 test_latch_1, test_latch_2;

u32 KCALL gen1_upper(PixPoint*, u32) {
    guard_upper(ac.elec_gen1_guard, ac.elec_gen1_sw);
    return 0;
}
u32 KCALL gen1_lower(PixPoint*, u32) {
    guard_lower(ac.elec_gen1_guard, ac.elec_gen1_sw);
    return 0;
}
u32 KCALL gen2_upper(PixPoint*, u32) {
    guard_upper(ac.elec_gen2_guard, ac.elec_gen2_sw);
    return 0;
}
u32 KCALL gen2_lower(PixPoint*, u32) {
    guard_lower(ac.elec_gen2_guard, ac.elec_gen2_sw);
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

// A generator switched off: failure acknowledged, test latch and the
// central warning cleared.
void switched_off(u8 sw, u8& failed, u8& latch) {
    if (sw != 0)
        return;
    if (failed == 1)
        failed = 2;
    latch = 0;
    ac.elec_fault_light = 0;
}

bool fault_lit(u8 latch, u8 failed) {
    const bool lit = ac.elec_ess_bus == 1 && (latch == 1 || failed == 1);
    if (lit)
        ac.elec_fault_light = 1;
    return lit;
}

// Guard images: on and covered (first), guard open (second), on (third), off (fourth).
void guarded(GaugeHeader* g, int first, u8 sw, u8 guard) {
    const bool on = sw == 1;
    const bool covered = on && guard == 0;
    show(g, first, covered);
    show(g, first + 2, !covered);
    show(g, first + 4, on && !covered);
    show(g, first + 6, !on);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    // both clears before either light, so a light still lit keeps the warning
    switched_off(ac.elec_gen1_sw, ac.elec_gen1_failed, test_latch_1);
    switched_off(ac.elec_gen2_sw, ac.elec_gen2_failed, test_latch_2);
    const bool lit_1 = fault_lit(test_latch_1, ac.elec_gen1_failed);
    const bool lit_2 = fault_lit(test_latch_2, ac.elec_gen2_failed);

    guarded(g, 1, ac.elec_gen1_sw, ac.elec_gen1_guard);
    guarded(g, 2, ac.elec_gen2_sw, ac.elec_gen2_guard);
    show(g, 9, lit_1);
    show(g, 10, lit_2);
}
}  // namespace

KESTRANE_GAUGE(elec_breaker,
               gauge("kestrane elec_breaker_jm47", 251, update)
                   .elements(image(26352, 0x4001),                    // e0 background
                             icon(art(22, 1), 37, 3, 0x40000003),     // e1 generator 1 on, covered
                             icon(art(22, 1), 161, 3, 0x40000003),    // e2 generator 2 on, covered
                             icon(art(22, 2), 37, 3, 0x40000003),     // e3 generator 1 guard open
                             icon(art(22, 2), 161, 3, 0x40000003),    // e4 generator 2 guard open
                             icon(art(22, 3), 37, 20, 0x40000003),    // e5 generator 1 on
                             icon(art(22, 3), 161, 20, 0x40000003),   // e6 generator 2 on
                             icon(art(22, 4), 37, 48, 0x40000003),    // e7 generator 1 off
                             icon(art(22, 4), 161, 48, 0x40000003),   // e8 generator 2 off
                             icon(art(22, 5), 47, 135, 0x40000003),   // e9 generator 1 fault
                             icon(art(22, 5), 173, 135, 0x40000003))  // e10 generator 2 fault
                   .mouse(click(37, 3, 50, 45, kCursorHand, gen1_upper),
                          click(37, 48, 50, 45, kCursorDown, gen1_lower),
                          click(161, 3, 50, 45, kCursorHand, gen2_upper),
                          click(161, 48, 50, 45, kCursorDown, gen2_lower),
                          click(47, 135, 30, 30, kCursorHand, test_1),
                          click(173, 135, 30, 30, kCursorHand, test_2)))
