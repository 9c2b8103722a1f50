// kestrane engstart_jm47: engine start panel. Start selector, start master,
// start push-button, two three-position ignition switches, start-power and
// ignition lights. The callback runs the ground start and the in-flight
// relight of both engines; the host spools the engines up.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1);
ModuleVar ias = token(61);
ModuleVar n2_1 = token(625), n2_2 = token(644);

constexpr u32 kStartEng1 = 0x102FC;
constexpr u32 kStartEng2 = 0x102FD;

constexpr i32 kCrankTicks = 990;  // 55 s of cranking before the starter cuts out
constexpr f64 kStarterCutoutN2 = 40.0;
constexpr u8 kSupplyGround = 112;
constexpr u8 kSupplyBattery = 130;

// Ignition switch: 0 off, 1..29 spring-loaded upper position, 30 continuous.
constexpr u8 kIgnContinuous = 30;
constexpr u8 kIgnUpperMax = 29;  // held up it stays up, it never latches
constexpr f64 kRelightIas = 150.0;
constexpr f64 kRelightOwnN2 = 12.0;
constexpr f64 kRelightOtherN2 = 80.0;

// --- handlers ----------------------------------------------------------------

u32 KCALL sel_eng1(PixPoint*, u32) {
    return set_switch(ac.eng_start_selector, 1), 0;
}
u32 KCALL sel_centre(PixPoint*, u32) {
    return set_switch(ac.eng_start_selector, 0), 0;
}
u32 KCALL sel_eng2(PixPoint*, u32) {
    return set_switch(ac.eng_start_selector, 2), 0;
}
u32 KCALL master_on(PixPoint*, u32) {
    return set_switch(ac.eng_start_master_sw, 1), 0;
}
u32 KCALL master_off(PixPoint*, u32) {
    return set_switch(ac.eng_start_master_sw, 0), 0;
}

u32 KCALL start_button(PixPoint*, u32) {
    if (ac.eng_start_selector == 1)
        ac.eng1_start_request = 1;
    else if (ac.eng_start_selector == 2)
        ac.eng2_start_request = 1;
    return 0;
}

// Upper position: 0 -> 10, then +2 per call (a click gives 12). Held, it
// climbs to 29 and stays in the upper position; from continuous it goes up.
void ignition_up(u8& sw) {
    if (sw == 0)
        sw = 10;
    const int v = sw + 2;
    sw = static_cast<u8>(v > kIgnUpperMax ? kIgnUpperMax : v);
}
u32 KCALL ign1_up(PixPoint*, u32) {
    return ignition_up(ac.eng1_ignition_sw), 0;
}
u32 KCALL ign1_off(PixPoint*, u32) {
    return ac.eng1_ignition_sw = 0, 0;
}
u32 KCALL ign1_cont(PixPoint*, u32) {
    return ac.eng1_ignition_sw = kIgnContinuous, 0;
}
u32 KCALL ign2_up(PixPoint*, u32) {
    return ignition_up(ac.eng2_ignition_sw), 0;
}
u32 KCALL ign2_off(PixPoint*, u32) {
    return ac.eng2_ignition_sw = 0, 0;
}
u32 KCALL ign2_cont(PixPoint*, u32) {
    return ac.eng2_ignition_sw = kIgnContinuous, 0;
}

// --- start sequence ------------------------------------------------------------

struct Starter {
    u8& request;
    u8& armed;
    i32& end_tick;
    u8& engaged;
    u8 feed;
    u32 event;
};

void abandon(Starter& s) {
    s.request = 0;
    s.armed = 0;
    s.engaged = 0;
}

// One engine's ground start: crank until N2 passes 40 % or 990 ticks have
// gone; the host gets the start event only while fuel reaches the engine.
void run_start(Starter s, bool conditions, f64 now, f64 n2) {
    if (!conditions) {
        abandon(s);
        return;
    }
    if (s.armed == 0) {
        s.end_tick = trunc_to<i32>(now + kCrankTicks);
        s.armed = 1;
        s.engaged = 1;
    }
    if (s.feed != 0 && now < s.end_tick) {
        s.engaged = 1;
        host::send_event(s.event);
    }
    if (now >= s.end_tick)
        abandon(s);  // time-out
    if (n2 > kStarterCutoutN2)
        abandon(s);  // started: starter cuts out
}

void show_ignition(GaugeHeader* g, int lower, u8 sw) {
    const bool up = sw >= 1 && sw < kIgnContinuous;
    const bool cont = sw == kIgnContinuous;
    show(g, lower, cont);              // lower image
    show(g, lower + 1, !up && !cont);  // middle
    show(g, lower + 2, up);            // upper
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    u8& ign1 = ac.eng1_ignition_sw;
    u8& ign2 = ac.eng2_ignition_sw;
    if (ign1 >= 1 && ign1 < kIgnContinuous)
        --ign1;
    if (ign2 >= 1 && ign2 < kIgnContinuous)
        --ign2;

    show(g, 1, ac.eng_start_selector == 1);
    show(g, 3, ac.eng_start_selector == 2);
    show(g, 2, ac.eng_start_selector != 1 && ac.eng_start_selector != 2);
    show(g, 4, ac.eng_start_master_sw == 1);
    show(g, 5, ac.eng_start_master_sw != 1);

    const bool ess = ac.elec_ess_bus == 1;
    show(g, 6,
         ess && (ac.elec_dc_gndpwr_on == 1 || (ac.elec_gndpwr_connected == 1 && ac.elec_batt_sel == 2)));

    if (ac.elec_dc_gndpwr_on == 1)
        ac.eng_starter_supply = kSupplyGround;
    else if (ac.elec_batt_sel == 2 && ac.elec_batt_charge > 0)
        ac.eng_starter_supply = kSupplyBattery;
    else
        ac.eng_starter_supply = 0;

    const f64 now = host::read(tick);
    const f64 n2_left = host::read(n2_1);
    const f64 n2_right = host::read(n2_2);
    const bool cranking_ok = ac.eng_starter_supply >= kSupplyGround && ess && ac.eng_start_master_sw == 1;
    run_start({ac.eng1_start_request, ac.eng1_start_armed, ac.eng1_start_end_tick, ac.eng1_starter_engaged,
               ac.fuel_feed_eng1, kStartEng1},
              cranking_ok && ac.eng1_start_request == 1, now, n2_left);
    run_start({ac.eng2_start_request, ac.eng2_start_armed, ac.eng2_start_end_tick, ac.eng2_starter_engaged,
               ac.fuel_feed_eng2, kStartEng2},
              cranking_ok && ac.eng2_start_request == 1, now, n2_right);

    // In-flight relight: windmilling engine, ignition on, the other engine
    // running. No starter, no start master.
    if (host::read(ias) >= kRelightIas && ess) {
        if (ign1 >= 1) {
            const f64 own = host::read(n2_1), other = host::read(n2_2);
            if (own >= kRelightOwnN2 && other >= kRelightOtherN2)
                host::send_event(kStartEng1);
        }
        if (ign2 >= 1) {
            const f64 own = host::read(n2_2), other = host::read(n2_1);
            if (own >= kRelightOwnN2 && other >= kRelightOtherN2)
                host::send_event(kStartEng2);
        }
    }

    show_ignition(g, 7, ign1);
    show_ignition(g, 10, ign2);
    show(g, 13, ign1 == kIgnContinuous && ess);
    show(g, 14, ign2 == kIgnContinuous && ess);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(engstart,
    gauge("kestrane engstart_jm47", 215, update)
        .elements(image(10592, 0x4001),             // e0 background
                  icon(12336, 94, 86, 0x40000003),  // e1 selector engine 1
                  icon(10080, 101, 86, 0x40000003), // e2 selector centre
                  icon(12352, 104, 86, 0x40000003), // e3 selector engine 2
                  icon(10576, 26, 64, 0x40000003),  // e4 start master on
                  icon(10608, 26, 48, 0x40000003),  // e5 start master off
                  icon(5728, 101, 67, 0x40000003),  // e6 start-power light
                  icon(10048, 77, 18, 0x40000003),  // e7 ignition 1 continuous
                  icon(10080, 77, 19, 0x40000003),  // e8 ignition 1 off
                  icon(10064, 77, 7, 0x40000003),   // e9 ignition 1 upper
                  icon(10048, 124, 18, 0x40000003), // e10 ignition 2 continuous
                  icon(10080, 124, 19, 0x40000003), // e11 ignition 2 off
                  icon(10064, 124, 7, 0x40000003),  // e12 ignition 2 upper
                  icon(5728, 29, 36, 0x40000003),   // e13 ignition 1 light
                  icon(5728, 172, 36, 0x40000003))  // e14 ignition 2 light
        .mouse(click(77, 75, 20, 28, kCursorDown, sel_eng1),
               click(97, 75, 20, 28, kCursorHand, sel_centre),
               click(117, 75, 20, 28, kCursorUp, sel_eng2),
               click(21, 66, 28, 20, kCursorUp, master_on),
               click(21, 46, 28, 20, kCursorDown, master_off),
               repeat(154, 58, 42, 42, kCursorHand, start_button),
               repeat(68, 0, 28, 16, kCursorUp, ign1_up),
               click(68, 16, 28, 16, kCursorHand, ign1_off),
               click(68, 32, 28, 16, kCursorUp, ign1_cont),
               repeat(115, 0, 28, 16, kCursorUp, ign2_up),
               click(115, 16, 28, 16, kCursorHand, ign2_off),
               click(115, 32, 28, 16, kCursorUp, ign2_cont)))
// clang-format on
