// kestrane elec_alt_lh_jm47: alternator LH panel. Guarded alternator switch,
// line switch, two fault lights; alternator LH comes on line here.
#include "elec_b_panel.h"

namespace {
using namespace kestrane;

ModuleVar n2_eng1 = token(625);
ModuleVar host_elec_failure = token(279);

u8 alt_light_test = 0;   // light 1, on the alternator switch
u8 line_light_test = 0;  // light 2, on the line switch

u32 KCALL alt_upper(PixPoint*, u32) {
    guard_upper(ac.elec_alt_lh_guard, ac.elec_alt_lh_sw);
    return 0;
}
u32 KCALL alt_lower(PixPoint*, u32) {
    guard_lower(ac.elec_alt_lh_guard, ac.elec_alt_lh_sw);
    return 0;
}
u32 KCALL line_close(PixPoint*, u32) {
    return set_switch(ac.elec_alt_lh_line_sw, 1), 0;
}
u32 KCALL line_open(PixPoint*, u32) {
    return set_switch(ac.elec_alt_lh_line_sw, 0), 0;
}
u32 KCALL alt_light_press(PixPoint*, u32) {
    return alt_light_test = 1, 0;
}
u32 KCALL line_light_press(PixPoint*, u32) {
    return line_light_test = 1, 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    ac.elec_alt_lh_online = elec_b::alternator_online(host::read(n2_eng1), host::read(host_elec_failure),
                                                      ac.fuel_hp_cock_lh, ac.elec_alt_lh_sw);

    elec_b::show_guarded(g, 1, 3, 4, 5, ac.elec_alt_lh_guard, ac.elec_alt_lh_sw);
    show(g, 2, ac.elec_alt_lh_line_sw == 1);
    show(g, 6, ac.elec_alt_lh_line_sw != 1);
    elec_b::fault_clear(alt_light_test, ac.elec_alt_lh_sw);
    elec_b::fault_clear(line_light_test, ac.elec_alt_lh_line_sw);
    elec_b::fault_light(g, 7, alt_light_test, false);
    elec_b::fault_light(g, 8, line_light_test, ac.elec_gen2_failed == 1);
}
}  // namespace

KESTRANE_GAUGE(elec_alt_lh, gauge("kestrane elec_alt_lh_jm47", 171, update)
                                .elements(image(26480, 0x4001),              // e0
                                          icon(29840, 37, 21, 0x40000003),   // e1 alternator on, guard closed
                                          icon(29856, 98, 21, 0x40000003),   // e2 line switch closed
                                          icon(29872, 37, 21, 0x40000003),   // e3 alternator guard open
                                          icon(29888, 37, 62, 0x40000003),   // e4 alternator on
                                          icon(29904, 37, 62, 0x40000003),   // e5 alternator off
                                          icon(29920, 98, 62, 0x40000003),   // e6 line switch open
                                          icon(29936, 39, 170, 0x40000003),  // e7 light 1 (alternator)
                                          icon(29952, 101, 170, 0x40000003))  // e8 light 2 (line)
                                .mouse(click(37, 21, 35, 41, kCursorHand, alt_upper),
                                       click(37, 62, 35, 41, kCursorDown, alt_lower),
                                       click(98, 21, 35, 41, kCursorHand, line_close),
                                       click(98, 62, 35, 41, kCursorDown, line_open),
                                       click(39, 170, 30, 30, kCursorHand, alt_light_press),
                                       click(101, 170, 30, 30, kCursorHand, line_light_press)))
