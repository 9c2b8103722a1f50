// kestrane Gearh_jm47: the landing gear handle and the gear horn. The host
// moves the gear; the handle asks it to, with green pressure. Green lost in
// flight holds the gear where it is, unless the emergency lever lets it fall
// (and then only down).
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;

constexpr u32 kGearUp = 0x1021F;
constexpr u32 kGearDown = 0x10220;
constexpr u16 kRedLow = 951;  // red circuit below this cannot free the gear

constexpr u8 kNeutral = 0;
constexpr u8 kDown = 1;
constexpr u8 kUp = 2;

ModuleVar leg_1 = token(333), leg_2 = token(332), leg_3 = token(334);
ModuleVar host_handle = token(331), on_ground = token(60), flap_angle = token(907);
ModuleVar throttle_1 = token(558), throttle_2 = token(568);

// Emergency extension: highest leg 1 position seen, and leg 1 now (whole units).
u32 leg_1_highest = 0;
u32 leg_1_now = 0;

bool green_working() {
    return ac.hyd_green_press > hyd::kGreenNormal;
}

u32 KCALL handle_up(PixPoint*, u32) {
    ac.gear_handle = kUp;
    if (green_working())
        host::send_event(kGearUp);
    return 0;
}
u32 KCALL handle_neutral(PixPoint*, u32) {
    ac.gear_handle = kNeutral;
    return 0;
}
u32 KCALL handle_down(PixPoint*, u32) {
    ac.gear_handle = kDown;
    if (green_working())
        host::send_event(kGearDown);
    return 0;
}

// Green lost in flight, gear not free: keep each end where it is.
void hold_gear(f64 l1, f64 l2) {
    ac.gear_frozen = 1;
    if (l2 > 0.0 && l1 < 5000.0)
        host::send_event(kGearUp);
    if (l1 > 15000.0 && l1 < 16383.0)
        host::send_event(kGearDown);
}

// Emergency extension: the gear falls and may not go back up.
void free_fall(f64 l1) {
    if (l1 > 0.0 && l1 < 16300.0) {
        ac.gear_frozen = 0;
        if (leg_1_now > leg_1_highest)
            leg_1_highest = leg_1_now;
        if (leg_1_now < leg_1_highest) {
            host::send_event(kGearDown);
            leg_1_highest = leg_1_now;
        }
    } else if (l1 >= 16300.0) {
        ac.gear_frozen = 1;
    }
}

void gear_cycle(f64 l1, f64 l2, f64 legs_sum) {
    leg_1_now = trunc_to<u32>(l1);
    if (ac.hyd_green_press < hyd::kLowPress && !is_on(host::read(on_ground))) {
        if (ac.hyd_red_press >= kRedLow && ac.gear_emerg_lever == 1)
            free_fall(l1);
        else
            hold_gear(l1, l2);
        return;
    }
    ac.gear_frozen = 0;
    if (host::read(host_handle) > 0.0)
        ac.gear_handle = kDown;
    else
        ac.gear_handle = legs_sum == 0.0 ? kNeutral : kUp;
}

void horn_cycle(f64 legs_sum) {
    const bool thrust = host::read(throttle_1) > 0.19 && host::read(throttle_2) > 0.19;
    const bool horn = !thrust && host::read(flap_angle) > 20.0 && legs_sum == 0.0;
    ac.gear_horn = horn ? 1 : 0;
    if (horn && hyd::ess_bus())
        sound::play(sound::kKlaxonGear, sound::kLooping);
    else
        sound::stop(sound::kKlaxonGear);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 l1 = host::read(leg_1);
    const f64 l2 = host::read(leg_2);
    const f64 legs_sum = l1 + l2 + host::read(leg_3);
    gear_cycle(l1, l2, legs_sum);
    const bool night = ac.light_panel_night != 0;
    for (int i = 0; i < 3; ++i) {
        // images in the order down, neutral, up
        const u8 position = i == 0 ? kDown : (i == 1 ? kNeutral : kUp);
        show(g, 1 + i, !night && ac.gear_handle == position);
        show(g, 4 + i, night && ac.gear_handle == position);
    }
    horn_cycle(legs_sum);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(gearh,
    gauge("kestrane Gearh_jm47", 15, update)
        .elements(image(42976, 0x4001),                // e0 background
                  icon(43136, 0, 156, 0x40000003),     // e1 handle down
                  icon(43152, 0, 102, 0x40000003),     // e2 handle neutral
                  icon(43168, 0, 0, 0x40000003),       // e3 handle up
                  icon(43184, 0, 156, 0x40000003),     // e4 handle down, night
                  icon(43200, 0, 102, 0x40000003),     // e5 handle neutral, night
                  icon(43216, 0, 0, 0x40000003))       // e6 handle up, night
        .mouse(click(0, 0, 15, 102, kCursorUp, handle_up),
               click(0, 102, 15, 54, kCursorHand, handle_neutral),
               click(0, 156, 15, 107, kCursorDown, handle_down)))
// clang-format on
