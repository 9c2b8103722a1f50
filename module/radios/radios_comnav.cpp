// kestrane radios_com1_jm47, radios_com2_jm47, radios_nav1_jm47 and
// radios_nav2_jm47: the communication and navigation tuning panels. The knobs
// send the host's tuning events (only with the essential bus); each cycle the
// panel reads the active frequency back, in BCD, and rolls its five drums to it.
#include "frame/drum.h"
#include "frame/gauge.h"

namespace {
using namespace kestrane;

// Drums by chain number less one: e1 the kHz pair (00, 25, 50, 75), e2 to e4
// the tenths, units and tens of MHz, e5 the leading "1".
constexpr i32 kPositions[5] = {4, 10, 10, 10, 4};

struct TunerDrums {
    Drum d[5];
};

constexpr TunerDrums at_rest() {
    TunerDrums t{};
    for (int k = 0; k < 5; ++k)
        t.d[k] = Drum{0.0, 0.0, kPositions[k]};
    return t;
}

TunerDrums com1_drums = at_rest(), com2_drums = at_rest(), nav1_drums = at_rest(), nav2_drums = at_rest();

struct Tuner {
    ModuleVar& frequency;
    TunerDrums& drums;
};

ModuleVar com1_freq = token(23), com2_freq = token(870), nav1_freq = token(24), nav2_freq = token(27);

constexpr Tuner kCom1{com1_freq, com1_drums};
constexpr Tuner kCom2{com2_freq, com2_drums};
constexpr Tuner kNav1{nav1_freq, nav1_drums};
constexpr Tuner kNav2{nav2_freq, nav2_drums};

// The last nibble holds the 10 kHz digit of a 25 kHz channel: .x25 is stored
// as 2, .x50 as 5, .x75 as 7.
f64 khz_position(u32 nibble) {
    switch (nibble) {
        case 2:
            return 1.0;
        case 5:
            return 2.0;
        case 7:
            return 3.0;
        default:
            return 0.0;
    }
}

void tuner_cycle(const Tuner& s) {
    const u32 w = host::read_bcd(s.frequency);
    drum_aim(s.drums.d[4], 1.0);
    drum_aim(s.drums.d[3], static_cast<f64>((w >> 12) & 0xF));
    drum_aim(s.drums.d[2], static_cast<f64>((w >> 8) & 0xF));
    drum_aim(s.drums.d[1], static_cast<f64>((w >> 4) & 0xF));
    drum_aim(s.drums.d[0], khz_position(w & 0xF));
}

template <const Tuner& S>
void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        tuner_cycle(S);
}

template <const Tuner& S, int K>
f64 KCALL drum_y(Element*) {
    return drum_step(S.drums.d[K]);
}

// A held knob keeps tuning: the host calls the handler again each cycle.
template <u32 Event>
u32 KCALL knob(PixPoint*, u32) {
    if (ac.elec_ess_bus == 1)
        host::send_event(Event, 0);
    return 0;
}

constexpr u32 kDrumFlags = 0x4003;

template <const Tuner& S, int K>
constexpr def::ElementDecl drum(u32 bitmap, i32 x) {
    return def::moving(bitmap, x, 3, kDrumFlags, drum_fixed_x, drum_y<S, K>, 0.0, 1.0, 0.0,
                       static_cast<f64>(kPositions[K]));
}

// Knob boxes, 33 x 27: up above, down below.
template <u32 Event>
constexpr def::AreaDecl knob_up(i32 x) {
    return def::repeat(x, 15, 33, 27, kCursorUp, knob<Event>);
}
template <u32 Event>
constexpr def::AreaDecl knob_down(i32 x) {
    return def::repeat(x, 42, 33, 27, kCursorDown, knob<Event>);
}
}  // namespace

KESTRANE_GAUGE(radios_com1, gauge("kestrane radios_com1_jm47", 96, update<kCom1>)
                                .elements(image(8512, 0x4001),                    // e0
                                          drum<kCom1, 0>(8704, 68),               // e1 kHz pair
                                          drum<kCom1, 1>(8576, 56),               // e2 tenths of MHz
                                          drum<kCom1, 2>(8576, 41),               // e3 MHz units
                                          drum<kCom1, 3>(8576, 29),               // e4 MHz tens
                                          drum<kCom1, 4>(8560, 17))               // e5 leading 1
                                .mouse(knob_up<65637>(13), knob_down<65636>(13),  //
                                       knob_up<65639>(47), knob_down<65638>(47)))

KESTRANE_GAUGE(radios_com2, gauge("kestrane radios_com2_jm47", 96, update<kCom2>)
                                .elements(image(8512, 0x4001),                    // e0
                                          drum<kCom2, 0>(8704, 68),               // e1 kHz pair
                                          drum<kCom2, 1>(8576, 56),               // e2 tenths of MHz
                                          drum<kCom2, 2>(8576, 41),               // e3 MHz units
                                          drum<kCom2, 3>(8576, 29),               // e4 MHz tens
                                          drum<kCom2, 4>(8560, 17))               // e5 leading 1
                                .mouse(knob_up<66437>(13), knob_down<66436>(13),  //
                                       knob_up<66440>(47), knob_down<66438>(47)))

KESTRANE_GAUGE(radios_nav1, gauge("kestrane radios_nav1_jm47", 96, update<kNav1>)
                                .elements(image(8496, 0x4001),                    // e0
                                          drum<kNav1, 0>(8704, 74),               // e1 kHz pair
                                          drum<kNav1, 1>(8576, 62),               // e2 tenths of MHz
                                          drum<kNav1, 2>(8576, 47),               // e3 MHz units
                                          drum<kNav1, 3>(8576, 35),               // e4 MHz tens
                                          drum<kNav1, 4>(8560, 23))               // e5 leading 1
                                .mouse(knob_up<65641>(19), knob_down<65640>(19),  //
                                       knob_up<65643>(53), knob_down<65642>(53)))

KESTRANE_GAUGE(radios_nav2, gauge("kestrane radios_nav2_jm47", 79, update<kNav2>)
                                .elements(image(8528, 0x4001),                    // e0
                                          drum<kNav2, 0>(8704, 70),               // e1 kHz pair
                                          drum<kNav2, 1>(8576, 58),               // e2 tenths of MHz
                                          drum<kNav2, 2>(8576, 43),               // e3 MHz units
                                          drum<kNav2, 3>(8576, 31),               // e4 MHz tens
                                          drum<kNav2, 4>(8560, 19))               // e5 leading 1
                                .mouse(knob_up<65645>(18), knob_down<65644>(18),  //
                                       knob_up<65647>(49), knob_down<65646>(49)))
