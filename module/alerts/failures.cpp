// kestrane failures_jm47: the failures panel. The pilot selects failures
// (with a delay in minutes and, for the engines, a minimum airspeed), a random
// failure, a fire scenario and presets; selections take effect when validated.
// The callback runs the armed failures against the simulation clock.
#include <cstddef>

#if defined(_WIN32)
#include <windows.h>
#endif

#include "alerts/failures.h"
#include "frame/format.h"
#include "frame/gauge.h"

namespace {
using namespace kestrane;

using Field8 = u8 AircraftState::*;
using Field16 = u16 AircraftState::*;

ModuleVar sim_time = token(604);
ModuleVar airspeed = token(61);
ModuleVar eng1_failed = token(564), eng2_failed = token(574);
ModuleVar flap_angle = token(907);

constexpr u32 kFailEngine1 = 66313, kFailEngine2 = 66314;
constexpr u32 kWindow = 10140;
constexpr u8 kArmed = 1, kSelected = 2;

constexpr Field8 kEntries[] = {&AircraftState::fail_eng1_entry,   &AircraftState::fail_fire_entry,
                               &AircraftState::fail_eng2_entry,   &AircraftState::fail_gen1_entry,
                               &AircraftState::fail_gen2_entry,   &AircraftState::fail_hyd_entry,
                               &AircraftState::fail_leak_entry,   &AircraftState::fail_scenario_entry,
                               &AircraftState::fail_random_entry, &AircraftState::fail_clear_entry,
                               &AircraftState::fail_preset_ready, &AircraftState::fail_preset_cold,
                               &AircraftState::fail_preset_reset, &AircraftState::fail_preset_elec,
                               &AircraftState::fail_preset_servo};

// A failure that fires a number of minutes after validation.
struct Timed {
    Field8 entry, delay, left;
    Field16 start;
};
constexpr Timed kEng1{&AircraftState::fail_eng1_entry, &AircraftState::fail_delay_eng1,
                      &AircraftState::fail_left_eng1, &AircraftState::fail_start_eng1};
constexpr Timed kFire{&AircraftState::fail_fire_entry, &AircraftState::fail_delay_fire,
                      &AircraftState::fail_left_fire, &AircraftState::fail_start_fire};
constexpr Timed kEng2{&AircraftState::fail_eng2_entry, &AircraftState::fail_delay_eng2,
                      &AircraftState::fail_left_eng2, &AircraftState::fail_start_eng2};
constexpr Timed kGen1{&AircraftState::fail_gen1_entry, &AircraftState::fail_delay_gen1,
                      &AircraftState::fail_left_gen1, &AircraftState::fail_start_gen1};
constexpr Timed kGen2{&AircraftState::fail_gen2_entry, &AircraftState::fail_delay_gen2,
                      &AircraftState::fail_left_gen2, &AircraftState::fail_start_gen2};
constexpr Timed kHyd{&AircraftState::fail_hyd_entry, &AircraftState::fail_delay_hyd,
                     &AircraftState::fail_left_hyd, &AircraftState::fail_start_hyd};
constexpr const Timed* kTimed[] = {&kEng1, &kFire, &kEng2, &kGen1, &kGen2, &kHyd};

bool armed(const Timed& f) {
    return ac.*f.entry == kArmed;
}
bool due(const Timed& f, f64 t) {
    return ac.*f.start + 60.0 * ac.*f.delay <= t;
}

// Minutes left before an armed failure, counted in whole minutes of the clock.
void count_down(const Timed& f, f64 t) {
    u8& left = ac.*f.left;
    if (ac.*f.entry != kArmed) {
        left = ac.*f.delay;
        return;
    }
    if (due(f, t) || left == 0)
        return;
    const i32 elapsed = trunc_to<i32>(t) / 60 - ac.*f.start / 60;
    left = trunc_to<u8>(static_cast<f64>(ac.*f.delay) - static_cast<f64>(elapsed) + 0.99);
}

// Selection boxes and setting buttons.
template <Field8 F>
u32 KCALL select(PixPoint*, u32) {
    if (ac.*F == 0)
        ac.*F = kSelected;
    return 0;
}
template <Field8 F>
u32 KCALL clear(PixPoint*, u32) {
    ac.*F = 0;
    return 0;
}
template <Field8 F>
u32 KCALL minus(PixPoint*, u32) {
    if (ac.*F > 0)
        --(ac.*F);
    return 0;
}
template <Field8 F>
u32 KCALL plus(PixPoint*, u32) {
    ac.*F = static_cast<u8>(ac.*F + 1);
    return 0;
}

u32 KCALL validate(PixPoint*, u32) {
    if (ac.fail_pending == kSelected) {
        const u16 now = trunc_to<u16>(host::read(sim_time));
        ac.fail_pending = 0;
        for (Field8 e : kEntries) {
            if (ac.*e == kSelected)
                ac.*e = kArmed;
        }
        for (const Timed* f : kTimed)
            ac.*f->start = now;
    }
    ac.fail_sum_validated = ac.fail_sum;
    return 0;
}

u32 KCALL close_panel(PixPoint*, u32) {
    return host::window_toggle(kWindow);
}

// The panel's three-character number fields.
void format_field(char* out, std::size_t size, int value) {
#if defined(_WIN32)
    (void)size;
    wsprintfA(out, "%3d", value);
#else
    format_int(out, size, value, 3);
#endif
}

template <Field8 F>
f64 KCALL number(Element* e) {
    const u8 v = ac.*F;
    if (e->u.str.text != nullptr)
        format_field(e->u.str.text, e->u.str.char_count + 1, v);
    return v;
}

void show_indicators(GaugeHeader* g) {
    show(g, 25, ac.fail_preset_ready != 0);
    show(g, 24, ac.fail_preset_cold != 0);
    show(g, 23, ac.fail_eng1_entry != 0 || ac.fail_fire_entry != 0);
    show(g, 22, ac.fail_eng1_entry != 0);
    show(g, 21, ac.fail_fire_entry != 0);
    show(g, 20, ac.fail_eng2_entry != 0);
    show(g, 19, ac.fail_eng2_entry != 0);
    show(g, 16, ac.fail_gen1_entry != 0 || ac.fail_gen2_entry != 0);
    show(g, 15, ac.fail_gen1_entry != 0);
    show(g, 14, ac.fail_gen2_entry != 0);
    show(g, 13, ac.fail_hyd_entry != 0);
    show(g, 12, ac.fail_hyd_entry != 0);
    show(g, 9, ac.fail_leak_entry != 0);
    show(g, 8, ac.fail_scenario_entry != 0);
    show(g, 7, ac.fail_random_entry != 0);
    show(g, 6, ac.fail_clear_entry != 0);
    show(g, 5, ac.fail_preset_reset != 0);
    show(g, 3, ac.fail_preset_elec != 0);
    show(g, 2, ac.fail_preset_servo != 0);
    show(g, 1, ac.fail_pending == kSelected);
}

void track_selection() {
    u32 sum = 0;
    for (Field8 e : kEntries)
        sum += ac.*e;
    ac.fail_sum = static_cast<u8>(sum);
    if (ac.fail_sum > ac.fail_sum_validated)
        ac.fail_pending = kSelected;
    else if (ac.fail_sum < ac.fail_sum_validated)
        ac.fail_sum_validated = ac.fail_sum;
}

// Engine failures go to the host once it still runs the engine.
void engine_failure(const Timed& f, Field8 speed, f64 t, f64 v, ModuleVar& failed, u32 event) {
    if (armed(f) && due(f, t) && v >= ac.*speed && host::read(failed) == 0.0)
        host::send_event(event, 1);
}

// Generator and hydraulic failures hold their output while armed, and give
// it back when the entry is cleared.
void held_failure(const Timed& f, f64 t, u8& output, u8& preset) {
    if (armed(f)) {
        preset = 0;
        if (due(f, t))
            output = 1;
    } else {
        output = 0;
    }
}

void run_timed_failures(f64 t, f64 v) {
    engine_failure(kEng1, &AircraftState::fail_speed_eng1, t, v, eng1_failed, kFailEngine1);
    engine_failure(kEng2, &AircraftState::fail_speed_eng2, t, v, eng2_failed, kFailEngine2);
    if (armed(kFire) && due(kFire, t) && v >= ac.fail_speed_fire && ac.eng1_fire == 0)
        ac.eng1_fire = 1;
    held_failure(kGen1, t, ac.elec_gen1_failed, ac.fail_preset_elec);
    held_failure(kGen2, t, ac.elec_gen2_failed, ac.fail_preset_elec);
    held_failure(kHyd, t, ac.hyd_green_fluid_loss, ac.fail_preset_servo);
}

// Every 56 seconds of the clock the random failure takes the counter (1..9,
// one step a cycle) as its pick, and keeps applying the pick each cycle.
void run_random_failure(f64 t) {
    if (ac.fail_random_entry != kArmed) {
        ac.fail_random_counter = 0;
        ac.fail_random_next = 56;
        return;
    }
    ac.fail_preset_elec = ac.fail_preset_servo = 0;
    ac.fail_random_counter = ac.fail_random_counter >= 9 ? 1 : static_cast<u8>(ac.fail_random_counter + 1);
    if (ac.fail_random_next <= t) {
        ac.fail_random_pick = ac.fail_random_counter;
        ac.fail_random_next =
            ac.fail_random_next > 0xFFFF - 56 ? 0xFFFF : static_cast<u16>(ac.fail_random_next + 56);
        ac.fail_random_phase = ac.fail_random_phase ? 0 : 1;
    }
    switch (ac.fail_random_pick) {
        case 1:
            if (host::read(eng1_failed) == 0.0)
                host::send_event(kFailEngine1, 1);
            break;
        case 2:
        case 4:
            ac.eng1_fire = 1;
            break;
        case 3:
            if (host::read(eng2_failed) == 0.0)
                host::send_event(kFailEngine2, 1);
            break;
        case 5:
            ac.elec_gen1_failed = 1;
            break;
        case 6:
            ac.elec_gen2_failed = 1;
            break;
        case 7:
        case 8:
        case 9:
            ac.hyd_green_pump1_failed = ac.hyd_green_pump2_failed = 1;
            break;
        default:
            break;
    }
}

// Fire scenario: above 130 knots the engine 1 fire is armed once (with its
// own delay and speed), and generator 2 fails while the flaps are out.
void run_scenario(f64 v) {
    if (ac.fail_scenario_entry != kArmed)
        return;
    ac.fail_preset_elec = ac.fail_preset_servo = 0;
    ac.fail_random_entry = 0;
    if (v > 130.0) {
        if (ac.fail_fire_entry == 0 && ac.fail_scenario_latch == 0) {
            ac.fail_fire_entry = kArmed;
            ac.fail_scenario_latch = 1;
        }
        if (host::read(flap_angle) > 15.0)
            ac.elec_gen2_failed = 1;
    }
}

void clear_all() {
    ac.fail_eng1_entry = ac.fail_eng2_entry = ac.fail_fire_entry = 0;
    ac.fail_gen1_entry = ac.fail_gen2_entry = ac.fail_hyd_entry = 0;
    ac.fail_leak_entry = ac.fail_scenario_entry = 0;
    ac.eng1_fire = 0;
    ac.hyd_green_leak = 0;
    ac.fail_scenario_latch = 0;
    ac.fail_clear_entry = 0;
}

void failures_cycle(GaugeHeader* g) {
    show_indicators(g);
    track_selection();

    if (ac.fail_preset_ready == kArmed)
        failures::ready_preset();
    if (ac.fail_preset_cold == kArmed)
        failures::cold_preset();
    if (ac.fail_preset_reset == kArmed)
        failures::reset_preset();
    if (ac.fail_preset_elec == kArmed)
        failures::elec_preset();
    if (ac.fail_preset_servo == kArmed)
        failures::servo_preset();

    const f64 t = host::read(sim_time);
    for (const Timed* f : kTimed)
        count_down(*f, t);

    const f64 v = host::read(airspeed);
    run_timed_failures(t, v);
    run_random_failure(t);
    run_scenario(v);
    if (ac.fail_leak_entry == kArmed)
        ac.hyd_green_leak = 1;
    if (ac.fail_clear_entry == kArmed)
        clear_all();

    if (ac.fail_sum_validated == ac.fail_sum)
        ac.fail_pending = 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        failures_cycle(g);
}

constexpr u32 kIconFlags = 0x40000003;
constexpr u32 kUnused = 24832;  // placeholder image of the five elements never shown
constexpr def::TextStyle kYellow{0xFFFF00, 0x46231E, 0xFFFF00};
constexpr u32 kBox = kMouseLeft;
constexpr u32 kHeld = kMouseLeft | kMouseRepeat;

constexpr def::ElementDecl field(i32 x, i32 y, ValueCallback cb) {
    return def::text(x, y, 54, 26, 3, kYellow, 0, cb);
}
constexpr def::AreaDecl box(i32 x, i32 y, MouseHandler fn) {
    return def::area(x, y, 67, 28, kCursorHand, kBox, fn);
}
constexpr def::AreaDecl down(i32 x, i32 y, MouseHandler fn) {
    return def::area(x, y, 67, 28, kCursorDown, kHeld, fn);
}
constexpr def::AreaDecl up(i32 x, i32 y, MouseHandler fn) {
    return def::area(x, y, 67, 28, kCursorUp, kHeld, fn);
}

using S = AircraftState;
}  // namespace

KESTRANE_GAUGE(
    failures,
    gauge("kestrane failures_jm47", 1179, update)
        .elements(image(24704, 0x5),                             // e0 background
                  icon(24832, 908, 691, kIconFlags),             // e1 validate pending
                  icon(25344, 946, 581, kIconFlags),             // e2 servo preset
                  icon(24960, 946, 465, kIconFlags),             // e3 electrical preset
                  icon(kUnused, 0, 0, kIconFlags),               // e4 unused
                  icon(25104, 946, 249, kIconFlags),             // e5 reset preset
                  icon(24896, 105, 789, kIconFlags),             // e6 clear all
                  icon(25376, 105, 738, kIconFlags),             // e7 random failure
                  icon(25200, 105, 713, kIconFlags),             // e8 fire scenario
                  icon(25184, 105, 688, kIconFlags),             // e9 green leak
                  icon(kUnused, 0, 0, kIconFlags),               // e10 unused
                  icon(kUnused, 0, 0, kIconFlags),               // e11 unused
                  icon(25360, 202, 569, kIconFlags),             // e12 green fluid loss
                  icon(25216, 106, 571, kIconFlags),             // e13 green fluid loss
                  icon(24880, 202, 490, kIconFlags),             // e14 generator 2
                  icon(24864, 202, 465, kIconFlags),             // e15 generator 1
                  icon(24944, 107, 467, kIconFlags),             // e16 generator 1 or 2
                  icon(kUnused, 0, 0, kIconFlags),               // e17 unused
                  icon(kUnused, 0, 0, kIconFlags),               // e18 unused
                  icon(25120, 238, 291, kIconFlags),             // e19 engine 2 failure
                  icon(25168, 107, 292, kIconFlags),             // e20 engine 2 failure
                  icon(25136, 238, 232, kIconFlags),             // e21 engine 1 fire
                  icon(25120, 238, 209, kIconFlags),             // e22 engine 1 failure
                  icon(25152, 107, 210, kIconFlags),             // e23 engine 1 failure or fire
                  icon(24912, 106, 149, kIconFlags),             // e24 cold preset
                  icon(24928, 107, 99, kIconFlags),              // e25 ready preset
                  field(360, 203, number<&S::fail_left_eng1>),   // e26 engine 1 minutes
                  field(567, 203, number<&S::fail_speed_eng1>),  // e27 engine 1 speed
                  field(360, 229, number<&S::fail_left_fire>),   // e28 fire minutes
                  field(567, 229, number<&S::fail_speed_fire>),  // e29 fire speed
                  field(360, 285, number<&S::fail_left_eng2>),   // e30 engine 2 minutes
                  field(567, 285, number<&S::fail_speed_eng2>),  // e31 engine 2 speed
                  field(396, 459, number<&S::fail_left_gen1>),   // e32 generator 1 minutes
                  field(396, 485, number<&S::fail_left_gen2>),   // e33 generator 2 minutes
                  field(481, 564, number<&S::fail_left_hyd>))    // e34 green fluid loss minutes
        .mouse(box(763, 202, select<&S::fail_eng1_entry>), box(830, 202, clear<&S::fail_eng1_entry>),
               box(763, 230, select<&S::fail_fire_entry>), box(830, 230, clear<&S::fail_fire_entry>),
               box(763, 284, select<&S::fail_eng2_entry>), box(830, 284, clear<&S::fail_eng2_entry>),
               box(763, 458, select<&S::fail_gen1_entry>), box(830, 458, clear<&S::fail_gen1_entry>),
               box(763, 486, select<&S::fail_gen2_entry>), box(830, 486, clear<&S::fail_gen2_entry>),
               box(763, 561, select<&S::fail_hyd_entry>), box(830, 561, clear<&S::fail_hyd_entry>),
               box(610, 678, select<&S::fail_leak_entry>), box(677, 678, clear<&S::fail_leak_entry>),
               box(610, 706, select<&S::fail_scenario_entry>), box(677, 706, clear<&S::fail_scenario_entry>),
               box(610, 734, select<&S::fail_random_entry>), box(677, 734, clear<&S::fail_random_entry>),
               box(610, 783, select<&S::fail_clear_entry>), box(677, 783, clear<&S::fail_clear_entry>),
               box(923, 93, select<&S::fail_preset_ready>), box(990, 93, clear<&S::fail_preset_ready>),
               box(923, 143, select<&S::fail_preset_cold>), box(990, 143, clear<&S::fail_preset_cold>),
               box(923, 277, select<&S::fail_preset_reset>), box(990, 277, clear<&S::fail_preset_reset>),
               box(923, 490, select<&S::fail_preset_elec>), box(990, 490, clear<&S::fail_preset_elec>),
               box(923, 605, select<&S::fail_preset_servo>), box(990, 605, clear<&S::fail_preset_servo>),
               down(322, 202, minus<&S::fail_delay_eng1>), up(389, 202, plus<&S::fail_delay_eng1>),
               down(525, 202, minus<&S::fail_speed_eng1>), up(592, 202, plus<&S::fail_speed_eng1>),
               down(322, 230, minus<&S::fail_delay_fire>), up(389, 230, plus<&S::fail_delay_fire>),
               down(525, 230, minus<&S::fail_speed_fire>), up(592, 230, plus<&S::fail_speed_fire>),
               down(322, 284, minus<&S::fail_delay_eng2>), up(389, 284, plus<&S::fail_delay_eng2>),
               down(525, 284, minus<&S::fail_speed_eng2>), up(592, 284, plus<&S::fail_speed_eng2>),
               down(358, 458, minus<&S::fail_delay_gen1>), up(425, 458, plus<&S::fail_delay_gen1>),
               down(358, 486, minus<&S::fail_delay_gen2>), up(425, 486, plus<&S::fail_delay_gen2>),
               down(442, 561, minus<&S::fail_delay_hyd>), up(509, 561, plus<&S::fail_delay_hyd>),
               def::area(908, 691, 179, 45, kCursorHand, kBox, validate),
               def::area(908, 757, 179, 45, kCursorHand, kBox, close_panel)))
