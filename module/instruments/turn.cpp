// kestrane turn_jm47: turn indicator on both AC buses, with its flag, and the
// ball in its curved tube (the ball needs no power).
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar ball = token(69);
ModuleVar turn_rate = token(70);
ModuleVar failure = token(287);  // 1: indicator failed

constexpr f64 kLimit = 1200;
constexpr f64 kReturnStep = 100;  // unpowered, per cycle

f64 needle_value = 0.0;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool powered = ac.elec_ac_bus_1 == 1 && ac.elec_ac_bus_2 == 1;
    if (powered) {
        needle_value = host::read(turn_rate);
    } else if (needle_value > kReturnStep) {
        needle_value -= kReturnStep;
    } else if (needle_value < -kReturnStep) {
        needle_value += kReturnStep;
    } else {
        needle_value = 0.0;
    }
    show(g, 1, !(powered && trunc_to<i32>(host::read(failure)) != 1));
}

f64 KCALL rate_needle(Element*) {
    return clamp_back(needle_value, -kLimit, kLimit);
}

f64 KCALL ball_x(Element*) {
    return host::read(ball);
}
f64 KCALL ball_y(Element*) {
    const f64 b = host::read(ball);
    return bounded(b * b / 300.0);
}

NeedlePoint scale[] = {
    {38, 102, -1200, 0}, {65, 78, -500, 0}, {90, 72, 0, 0}, {115, 78, 500, 0}, {142, 102, 1200, 0}};

// The host fails the dial, flag and needle together.
constexpr FailureEntry kFailures[] = {{18, 2}, {0, 0}};
}  // namespace

KESTRANE_GAUGE(turn,
               gauge("kestrane turn_jm47", 181, update)
                   .elements(failing(image(42176, 0x4001), kFailures),       // e0 dial
                             failing(icon(48256, 125, 55, 0x3), kFailures),  // e1 flag
                             failing(needle(48272, 90, 132, 4, 60, 0x4003, rate_needle, scale, 0, 70),
                                     kFailures),                                                 // e2 needle
                             slider(48288, 80, 123, 0x4003, 69, 69, 1.0, 1.0, ball_x, ball_y)))  // e3 ball
