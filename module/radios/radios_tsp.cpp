// kestrane radios_tsp_jm47: the transponder. Its knobs send the host's code
// digit events whatever the power; each cycle it reads the code back (octal,
// one digit per nibble) and rolls four eight-digit drums to it.
#include "frame/drum.h"
#include "frame/gauge.h"

namespace {
using namespace kestrane;

constexpr i32 kPositions = 8;

// digits 1 (left) to 4 (right), drawn as e5 to e2
Drum code_drums[4] = {
    {0.0, 0.0, kPositions}, {0.0, 0.0, kPositions}, {0.0, 0.0, kPositions}, {0.0, 0.0, kPositions}};

ModuleVar code = token(38);

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    u32 w = host::read_bcd(code);
    constexpr u32 kPlaces[3] = {0x1000, 0x100, 0x10};
    for (int i = 0; i < 3; ++i) {
        drum_aim(code_drums[i], static_cast<f64>(w / kPlaces[i]));
        w %= kPlaces[i];
    }
    drum_aim(code_drums[3], static_cast<f64>(w));
}

template <int Digit>
f64 KCALL drum_y(Element*) {
    return drum_step(code_drums[Digit]);
}

template <u32 Event>
u32 KCALL knob(PixPoint*, u32) {
    host::send_event(Event, 0);
    return 0;
}

template <int Digit>
constexpr def::ElementDecl drum(i32 x) {
    return def::moving(8752, x, 11, 0x4003, drum_fixed_x, drum_y<Digit>, 0.0, 1.0, 0.0, kPositions);
}

// Each digit's knob: up above, down below.
template <u32 Event>
constexpr def::AreaDecl up(i32 x) {
    return def::repeat(x, 25, 25, 19, kCursorUp, knob<Event>);
}
template <u32 Event>
constexpr def::AreaDecl down(i32 x) {
    return def::repeat(x, 44, 25, 19, kCursorDown, knob<Event>);
}
}  // namespace

KESTRANE_GAUGE(radios_tsp, gauge("kestrane radios_tsp_jm47", 187, update)
                               .elements(image(8720, 0x4001),             // e0
                                         icon(8736, 69, 10, 0x3),         // e1 drum window
                                         drum<3>(109),                    // e2 digit 4
                                         drum<2>(96),                     // e3 digit 3
                                         drum<1>(83),                     // e4 digit 2
                                         drum<0>(70))                     // e5 digit 1
                               .mouse(up<65651>(45), down<66455>(45),     // digit 1
                                      up<65652>(70), down<66456>(70),     // digit 2
                                      up<65653>(95), down<66457>(95),     // digit 3
                                      up<65654>(120), down<66458>(120)))  // digit 4
