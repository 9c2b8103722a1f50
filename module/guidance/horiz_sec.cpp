// kestrane horiz_sec_jm47: standby attitude indicator with its own gyro,
// powered by both AC buses and the TADG, and a horizon reference knob.
#include "frame/gauge.h"
#include "guidance/fd_law.h"
#include "guidance/fd_panel.h"

namespace {
using namespace kestrane;

ModuleVar pitch = token(78);
ModuleVar bank = token(80);
ModuleVar fail_a = token(276);
ModuleVar fail_b = token(288);

struct Standby {
    f64 bank = 0.0, pitch = 0.0;  // shown
    u8 bank_toppled = 0, pitch_toppled = 0;
    i32 reference = 0;  // horizon reference bar, -10..10
};
Standby sb{};

u32 KCALL reference_up(PixPoint*, u32) {
    if (sb.reference < 10) {
        ++sb.reference;
        sound::click();
    }
    return 0;
}
u32 KCALL reference_down(PixPoint*, u32) {
    if (sb.reference > -10) {
        --sb.reference;
        sound::click();
    }
    return 0;
}

f64 KCALL none(Element*) {
    return 0.0;
}
f64 KCALL across(Element*) {
    return 1.0;
}
f64 KCALL sphere_pitch(Element*) {
    return clamp_back(sb.pitch, -43.0, 43.0);
}
f64 KCALL sphere_bank(Element*) {
    return sb.bank;
}
f64 KCALL reference_bar(Element*) {
    return sb.reference + 10.0;
}
f64 KCALL reference_needle(Element*) {
    return sb.reference;
}

NeedlePoint reference_scale[] = {{280, 301, -10.0, 0.0}, {300, 281, 0.0, 0.0}, {320, 301, 10.0, 0.0}};

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool powered = ac.elec_ac_bus_1 == 1 && ac.elec_ac_bus_2 == 1 && ac.elec_tadg_on == 1;
    const bool failed_a = is_on(host::read(fail_a));
    const bool failed_b = is_on(host::read(fail_b));
    show(g, 4, failed_a || failed_b || !powered);
    sb.bank = fd::standby_bank_step(sb.bank, host::read(bank), powered, sb.bank_toppled);
    sb.pitch = fd::pitch_step(sb.pitch, host::read(pitch), powered, sb.pitch_toppled);
    const bool lit = fd::knobs_lit();
    show(g, 5, !lit);
    show(g, 6, !lit);
    show(g, 7, lit);
    show(g, 8, lit);
}
}  // namespace

KESTRANE_GAUGE(
    horiz_sec,
    gauge("kestrane horiz_sec_jm47", 340, update)
        .elements(image(42192, 0x4001),  // e0 background
                  sprite(42193, 170, 170, 150, 150, 0x4003, 150, 150, none, sphere_pitch,
                         sphere_bank),  // e1 sphere
                  sprite(42194, 170, 170, 150, 150, 0x4083, 150, 150, none, none,
                         sphere_bank),                                                 // e2 bank scale
                  moving(42195, 53, 136, 0x4003, across, reference_bar, 0, 1, 0, 20),  // e3 reference bar
                  icon(42196, 269, 96, 0x40000003),                                    // e4 flag
                  icon(42197, 241, 243, 0x3),                                          // e5 knob
                  needle(42198, 300, 301, 4, 30, 0x4003, reference_needle, reference_scale),  // e6 needle
                  icon(42199, 241, 243, 0x40000003),                                          // e7 lit knob
                  needle(42200, 300, 301, 4, 30, 0x40004003, reference_needle,
                         reference_scale))  // e8 lit needle
        .mouse(click(260, 243, 40, 101, kCursorDown, reference_up),
               click(300, 243, 40, 101, kCursorUp, reference_down)))
