// kestrane montre_jm47: the clock. Hour and minute hands from the host's
// clock, a rotating bezel, a chronograph (seconds hand and 15-minute counter)
// with start/stop and reset, and a clock-set mode in which the four arrows
// send the host's clock-setting events.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar hours = token(3);
ModuleVar minutes = token(4);
ModuleVar sim_seconds = token(604);

constexpr i32 kBezelStep = 6, kBezelTop = 354;  // degrees
constexpr u32 kChronoTopMinute = 15;

struct Chrono {
    u32 seconds;
    u32 minutes;  // 0..15
    i32 base;     // simulation second at which the current minute began
    u8 running;
    u8 reset;
};

i32 bezel = 0;
Chrono chrono{};
u8 set_mode = 0;
f64 hour_hand = 0.0;

void chrono_cycle(Chrono& c, f64 t) {
    if (c.running == 0) {
        // a restart goes on from the seconds shown
        c.base = trunc_to<i32>(t - static_cast<f64>(c.seconds));
    } else if (c.base == 0) {
        c.base = trunc_to<i32>(t);
    } else {
        if (c.seconds < 60)
            c.seconds = trunc_to<u32>(t - static_cast<f64>(c.base));
        if (c.seconds >= 60) {
            c.minutes = c.minutes >= kChronoTopMinute ? 0 : c.minutes + 1;
            c.base = trunc_to<i32>(static_cast<f64>(c.base) + 60.0);
            c.seconds = 0;
        }
    }
    if (c.reset == 1) {
        c.seconds = 0;
        c.minutes = 0;
        c.base = 0;
        c.reset = 0;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    f64 h = host::read(hours);
    if (h >= 12)
        h -= 12;
    hour_hand = bounded(h + host::read(minutes) * 0.0166667);
    chrono_cycle(chrono, host::read(sim_seconds));
    show(g, 3, set_mode == 0);
    show(g, 4, set_mode == 1);
}

f64 KCALL hour_value(Element*) {
    return hour_hand;
}
f64 KCALL chrono_seconds(Element*) {
    return static_cast<f64>(chrono.seconds);
}
f64 KCALL chrono_minutes(Element*) {
    return static_cast<f64>(chrono.minutes);
}
f64 KCALL fixed(Element*) {
    return 0.0;
}
f64 KCALL bezel_angle(Element*) {
    return static_cast<f64>(bezel);
}

u32 KCALL bezel_down(PixPoint*, u32) {
    bezel = bezel <= 0 ? kBezelTop : bezel - kBezelStep;
    return 0;
}
u32 KCALL bezel_up(PixPoint*, u32) {
    bezel = bezel >= kBezelTop ? 0 : bezel + kBezelStep;
    return 0;
}
u32 KCALL chrono_reset(PixPoint*, u32) {
    chrono.reset = 1;
    return 0;
}
u32 KCALL chrono_start_stop(PixPoint*, u32) {
    chrono.running = chrono.running == 0 ? 1 : 0;
    return 0;
}
u32 KCALL set_mode_toggle(PixPoint*, u32) {
    set_mode = set_mode == 0 ? 1 : 0;
    return 0;
}
template <u32 Event>
u32 KCALL set_clock(PixPoint*, u32) {
    if (set_mode == 1)
        host::send_event(Event, 0);
    return 0;
}

NeedlePoint hour_scale[] = {{128, 68, 0, 0},  {158, 76, 1, 0},  {180, 98, 2, 0},  {188, 128, 3, 0},
                            {180, 158, 4, 0}, {158, 180, 5, 0}, {128, 188, 6, 0}, {98, 180, 7, 0},
                            {76, 158, 8, 0},  {68, 128, 9, 0},  {76, 98, 10, 0},  {98, 76, 11, 0},
                            {128, 68, 12, 0}};
NeedlePoint minute_scale[] = {{128, 38, 0, 0},   {173, 50, 5, 0},   {206, 83, 10, 0},  {218, 128, 15, 0},
                              {206, 173, 20, 0}, {173, 206, 25, 0}, {128, 218, 30, 0}, {83, 206, 35, 0},
                              {50, 173, 40, 0},  {38, 128, 45, 0},  {50, 83, 50, 0},   {83, 50, 55, 0}};
NeedlePoint second_scale[] = {{128, 38, 0, 0},   {173, 50, 5, 0},   {206, 83, 10, 0},  {218, 128, 15, 0},
                              {206, 173, 20, 0}, {173, 206, 25, 0}, {128, 218, 30, 0}, {83, 206, 35, 0},
                              {50, 173, 40, 0},  {38, 128, 45, 0},  {50, 83, 50, 0},   {83, 50, 55, 0}};
NeedlePoint chrono_minute_scale[] = {{128, 146, 0, 0}, {150, 184, 5, 0}, {106, 184, 10, 0}};

constexpr u32 kHoursDown = 65657, kHoursUp = 65658, kMinutesDown = 65659, kMinutesUp = 65660;
}  // namespace

KESTRANE_GAUGE(
    montre,
    gauge("kestrane montre_jm47", 256, update)
        .elements(image(42896, 0x4001),               // e0 dial
                  icon(48352, 94, 243, 0x3),          // e1 fixed image
                  icon(48368, 25, 217, 0x3),          // e2 fixed image
                  icon(48384, 207, 193, 0x3),         // e3 set mode off
                  icon(48400, 207, 193, 0x40000003),  // e4 set mode on
                  sprite(48416, 12, 12, 0, 0, 0x4003, 116, 116, fixed, fixed, bezel_angle),  // e5 bezel
                  needle(48432, 128, 171, 2, 14, 0x4003, chrono_minutes,
                         chrono_minute_scale),                                     // e6 chrono minutes
                  needle(48448, 128, 128, 4, 50, 0x4003, hour_value, hour_scale),  // e7 hours
                  needle(48464, 128, 128, 4, 80, 0x4003, nullptr, minute_scale, 0,
                         4),  // e8 minutes, straight from the clock
                  needle(48480, 128, 128, 2, 80, 0x4003, chrono_seconds, second_scale))  // e9 chrono seconds
        .mouse(repeat(0, 49, 67, 138, kCursorDown, bezel_down), repeat(189, 49, 67, 138, kCursorUp, bezel_up),
               click(22, 199, 40, 75, kCursorHand, chrono_reset),
               click(108, 228, 40, 75, kCursorHand, chrono_start_stop),
               click(196, 201, 40, 75, kCursorHand, set_mode_toggle),
               repeat(68, 228, 40, 38, kCursorDown, set_clock<kHoursDown>),
               repeat(148, 228, 40, 38, kCursorUp, set_clock<kHoursUp>),
               repeat(68, 266, 40, 37, kCursorDown, set_clock<kMinutesDown>),
               repeat(148, 266, 40, 37, kCursorUp, set_clock<kMinutesUp>)))
