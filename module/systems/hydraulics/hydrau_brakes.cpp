// kestrane hydrau_brakes_jm47: brake pressures. The green circuit feeds the
// normal brakes on the essential bus; the red circuit holds the parking brake
// and takes over the pedals when the green circuit is lost. Squeal while
// braking on the roll.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;
using namespace kestrane::hyd;

ModuleVar on_ground = token(60), ground_speed = token(61), pedal_left = token(320), pedal_right = token(321),
          park_brake = token(323);

struct BrakeSide {
    u16 circuit, left, right;
};
BrakeSide green, red;

inline constexpr f64 kCircuitTop = 4000;
inline constexpr f64 kBrakeTop = 2500;

u16 brake_of(f64 input) {
    return trunc_to<u16>(input / 20);
}

void set_both(BrakeSide& b, u16 v) {
    b.left = v;
    b.right = v;
}

f64 KCALL green_circuit(Element*) {
    return clamp_back(green.circuit, 0, kCircuitTop);
}
f64 KCALL green_left(Element*) {
    return clamp_back(green.left, 0, kBrakeTop);
}
f64 KCALL green_right(Element*) {
    return clamp_back(green.right, 0, kBrakeTop);
}
f64 KCALL red_circuit(Element*) {
    return clamp_back(red.circuit, 0, kCircuitTop);
}
f64 KCALL red_left(Element*) {
    return clamp_back(red.left, 0, kBrakeTop);
}
f64 KCALL red_right(Element*) {
    return clamp_back(red.right, 0, kBrakeTop);
}

// Each dial's scale: a half circle of 40 pixels above its needle's pivot.
NeedlePoint green_left_scale[] = {{24, 150, 0, 0}, {64, 110, 1250, 0}, {104, 150, 2500, 0}};
NeedlePoint green_right_scale[] = {{160, 150, 0, 0}, {200, 110, 1250, 0}, {240, 150, 2500, 0}};
NeedlePoint green_circuit_scale[] = {{92, 80, 0, 0}, {132, 40, 2000, 0}, {172, 80, 4000, 0}};
NeedlePoint red_left_scale[] = {{24, 330, 0, 0}, {64, 290, 1250, 0}, {104, 330, 2500, 0}};
NeedlePoint red_right_scale[] = {{160, 330, 0, 0}, {200, 290, 1250, 0}, {240, 330, 2500, 0}};
NeedlePoint red_circuit_scale[] = {{92, 260, 0, 0}, {132, 220, 2000, 0}, {172, 260, 4000, 0}};

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 ground = host::read(on_ground);
    const f64 park = host::read(park_brake);
    const f64 left = host::read(pedal_left);
    const f64 right = host::read(pedal_right);
    const bool parked = park > 0.1;
    const bool no_brakes = ground == 0.0 || ac.brake_park_auto == 1;

    green.circuit = ac.hyd_green_press;
    if (no_brakes) {
        set_both(green, 0);
    } else if (is_on(ground) && ess_bus()) {
        if (ac.hyd_green_press < 1401) {
            set_both(green, 0);
        } else if (parked) {
            set_both(green, brake_of(park));
        } else {
            green.left = brake_of(left);
            green.right = brake_of(right);
        }
    }

    if (is_on(ground) && park == 0.0 && host::read(ground_speed) >= 30.0 && (left > 1000 || right > 1000))
        sound::play(sound::kBrakes, sound::kLooping);
    else
        sound::stop(sound::kBrakes);

    red.circuit = ac.hyd_red_press;
    if (no_brakes) {
        set_both(red, 0);
    } else if (is_on(ground) && ac.elec_dc_sec_bus == 1) {
        // Below 51 the red circuit still holds the parking brake.
        if (parked) {
            set_both(red, brake_of(park));
        } else if (ac.hyd_green_press < 1400 && ac.hyd_red_press > 1400) {
            red.left = brake_of(left);
            red.right = brake_of(right);
        } else {
            set_both(red, 0);
        }
    }
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(hydrau_brakes,
    gauge("kestrane hydrau_brakes_jm47", 265, update)
        .elements(image(40800, 0x4001),                                                   // e0 background
                  needle(46416, 64, 150, 4, 40, 0x4003, green_left, green_left_scale),         // e1 green left brake
                  needle(46416, 200, 150, 4, 40, 0x4003, green_right, green_right_scale),       // e2 green right brake
                  needle(46432, 132, 80, 4, 40, 0x4003, green_circuit, green_circuit_scale),    // e3 green circuit
                  needle(46448, 64, 330, 4, 40, 0x4003, red_left, red_left_scale),           // e4 red left brake
                  needle(46448, 200, 330, 4, 40, 0x4003, red_right, red_right_scale),         // e5 red right brake
                  needle(46464, 132, 260, 4, 40, 0x4003, red_circuit, red_circuit_scale)))    // e6 red circuit
// clang-format on
