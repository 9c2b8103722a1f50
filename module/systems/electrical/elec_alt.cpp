// kestrane elec_alt_lh_jm47 and elec_alt_rh_jm47: alternator panels. Guarded
// alternator switch, line switch, two fault lights; each alternator comes on
// line here. The RH panel is the mirror of the LH one (line switch on the
// left, alternator switch on the right).
#include "elec_b_panel.h"

namespace {
using namespace kestrane;

struct AltLatches {
    u8 alt_light_test;   // light 1, on the alternator switch
    u8 line_light_test;  // light 2, on the line switch
};

struct AltPanel {
    u8& sw;
    u8& guard;
    u8& line_sw;
    u8& online;
    u8& hp_cock;
    u8& line_failed;  // failure shown by light 2
    ModuleVar& n2;
    ModuleVar& host_elec_failure;
    AltLatches& latches;
};

ModuleVar n2_eng1 = token(625), lh_elec_failure = token(279);
ModuleVar n2_eng2 = token(644), rh_elec_failure = token(279);
AltLatches lh_latches{}, rh_latches{};

// Light 2 shows generator 2's failure on both panels.
constexpr AltPanel kLh{
    .sw = ac.elec_alt_lh_sw,
    .guard = ac.elec_alt_lh_guard,
    .line_sw = ac.elec_alt_lh_line_sw,
    .online = ac.elec_alt_lh_online,
    .hp_cock = ac.fuel_hp_cock_lh,
    .line_failed = ac.elec_gen2_failed,
    .n2 = n2_eng1,
    .host_elec_failure = lh_elec_failure,
    .latches = lh_latches,
};
constexpr AltPanel kRh{
    .sw = ac.elec_alt_rh_sw,
    .guard = ac.elec_alt_rh_guard,
    .line_sw = ac.elec_alt_rh_line_sw,
    .online = ac.elec_alt_rh_online,
    .hp_cock = ac.fuel_hp_cock_rh,
    .line_failed = ac.elec_gen2_failed,
    .n2 = n2_eng2,
    .host_elec_failure = rh_elec_failure,
    .latches = rh_latches,
};

template <const AltPanel& S>
u32 KCALL alt_upper(PixPoint*, u32) {
    guard_upper(S.guard, S.sw);
    return 0;
}
template <const AltPanel& S>
u32 KCALL alt_lower(PixPoint*, u32) {
    guard_lower(S.guard, S.sw);
    return 0;
}
template <const AltPanel& S>
u32 KCALL line_close(PixPoint*, u32) {
    return set_switch(S.line_sw, 1), 0;
}
template <const AltPanel& S>
u32 KCALL line_open(PixPoint*, u32) {
    return set_switch(S.line_sw, 0), 0;
}
template <const AltPanel& S>
u32 KCALL alt_light_press(PixPoint*, u32) {
    return S.latches.alt_light_test = 1, 0;
}
template <const AltPanel& S>
u32 KCALL line_light_press(PixPoint*, u32) {
    return S.latches.line_light_test = 1, 0;
}

void alt_cycle(GaugeHeader* g, const AltPanel& s) {
    s.online = elec_b::alternator_online(host::read(s.n2), host::read(s.host_elec_failure), s.hp_cock, s.sw);

    elec_b::show_guarded(g, 1, 3, 4, 5, s.guard, s.sw);
    show(g, 2, s.line_sw == 1);
    show(g, 6, s.line_sw != 1);
    elec_b::fault_clear(s.latches.alt_light_test, s.sw);
    elec_b::fault_clear(s.latches.line_light_test, s.line_sw);
    elec_b::fault_light(g, 7, s.latches.alt_light_test, false);
    elec_b::fault_light(g, 8, s.latches.line_light_test, s.line_failed == 1);
}

template <const AltPanel& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        alt_cycle(g, S);
}
}  // namespace

KESTRANE_GAUGE(elec_alt_lh, gauge("kestrane elec_alt_lh_jm47", 171, update<kLh>)
                                .elements(image(26480, 0x4001),              // e0
                                          icon(29840, 37, 21, 0x40000003),   // e1 alternator on, guard closed
                                          icon(29856, 98, 21, 0x40000003),   // e2 line switch closed
                                          icon(29872, 37, 21, 0x40000003),   // e3 alternator guard open
                                          icon(29888, 37, 62, 0x40000003),   // e4 alternator on
                                          icon(29904, 37, 62, 0x40000003),   // e5 alternator off
                                          icon(29920, 98, 62, 0x40000003),   // e6 line switch open
                                          icon(29936, 39, 170, 0x40000003),  // e7 light 1 (alternator)
                                          icon(29952, 101, 170, 0x40000003))  // e8 light 2 (line)
                                .mouse(click(37, 21, 35, 41, kCursorHand, alt_upper<kLh>),
                                       click(37, 62, 35, 41, kCursorDown, alt_lower<kLh>),
                                       click(98, 21, 35, 41, kCursorHand, line_close<kLh>),
                                       click(98, 62, 35, 41, kCursorDown, line_open<kLh>),
                                       click(39, 170, 30, 30, kCursorHand, alt_light_press<kLh>),
                                       click(101, 170, 30, 30, kCursorHand, line_light_press<kLh>)))

KESTRANE_GAUGE(elec_alt_rh,
               gauge("kestrane elec_alt_rh_jm47", 132, update<kRh>)
                   .elements(image(26496, 0x4001),               // e0
                             icon(29968, 97, 21, 0x40000003),    // e1 alternator on, guard closed
                             icon(29984, 37, 21, 0x40000003),    // e2 line switch closed
                             icon(30000, 97, 21, 0x40000003),    // e3 alternator guard open
                             icon(30016, 97, 62, 0x40000003),    // e4 alternator on
                             icon(30032, 97, 62, 0x40000003),    // e5 alternator off
                             icon(30048, 37, 62, 0x40000003),    // e6 line switch open
                             icon(30064, 100, 170, 0x40000003),  // e7 light 1 (alternator), right
                             icon(30080, 39, 170, 0x40000003))   // e8 light 2 (line), left
                   .mouse(click(97, 21, 35, 41, kCursorHand, alt_upper<kRh>),
                          click(97, 62, 35, 41, kCursorHand, alt_lower<kRh>),
                          click(37, 21, 35, 41, kCursorHand, line_close<kRh>),
                          click(37, 62, 35, 41, kCursorHand, line_open<kRh>),
                          click(100, 170, 30, 30, kCursorHand, alt_light_press<kRh>),
                          click(39, 170, 30, 30, kCursorHand, line_light_press<kRh>)))
