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
// The four panels differ in background, width, where the drums start and where
// the two knobs stand.
template <const Tuner& S, u32 LeftUp, u32 LeftDown, u32 RightUp, u32 RightDown>
constexpr auto tuner_gauge(const char* name, u32 width, u32 background, i32 x, i32 left, i32 right) {
    using namespace kestrane::def;
    return gauge(name, width, update<S>)
        .elements(image(background, 0x4001),  // e0
                  drum<S, 0>(8704, x + 51),   // e1 kHz pair
                  drum<S, 1>(8576, x + 39),   // e2 tenths of MHz
                  drum<S, 2>(8576, x + 24),   // e3 MHz units
                  drum<S, 3>(8576, x + 12),   // e4 MHz tens
                  drum<S, 4>(8560, x))        // e5 leading 1
        .mouse(knob_up<LeftUp>(left), knob_down<LeftDown>(left), knob_up<RightUp>(right),
               knob_down<RightDown>(right));
}
}  // namespace

KESTRANE_GAUGE(radios_com1, (tuner_gauge<kCom1, 65637, 65636, 65639, 65638>("kestrane radios_com1_jm47", 96,
                                                                            8512, 17, 13, 47)))
KESTRANE_GAUGE(radios_com2, (tuner_gauge<kCom2, 66437, 66436, 66440, 66438>("kestrane radios_com2_jm47", 96,
                                                                            8512, 17, 13, 47)))
KESTRANE_GAUGE(radios_nav1, (tuner_gauge<kNav1, 65641, 65640, 65643, 65642>("kestrane radios_nav1_jm47", 96,
                                                                            8496, 23, 19, 53)))
KESTRANE_GAUGE(radios_nav2, (tuner_gauge<kNav2, 65645, 65644, 65647, 65646>("kestrane radios_nav2_jm47", 79,
                                                                            8528, 19, 18, 49)))
