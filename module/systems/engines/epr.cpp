// kestrane epr1_jm47 and epr2_jm47: engine EPR, with the reference needle and
// its three digit drums set by the knob below the dial.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

struct EprEngine {
    Epr& epr;
    f64& disp;
    f64& ref;
    f64& drum_units;
    f64& drum_tens;
    f64& drum_hundreds;
    const char* named;  // the engine's EPR
    u32 knob_result;    // what the knob's handlers answer the host
};

Epr epr_1{}, epr_2{};

// unlike engine 1's, engine 2's knob answers 1 to the host
constexpr EprEngine kEngine1{
    .epr = epr_1,
    .disp = ac.eng1_epr_disp,
    .ref = ac.eng1_epr_ref,
    .drum_units = ac.eng1_epr_drum_units,
    .drum_tens = ac.eng1_epr_drum_tens,
    .drum_hundreds = ac.eng1_epr_drum_hundreds,
    .named = "Turbine_EPR_1",
    .knob_result = 0,
};
constexpr EprEngine kEngine2{
    .epr = epr_2,
    .disp = ac.eng2_epr_disp,
    .ref = ac.eng2_epr_ref,
    .drum_units = ac.eng2_epr_drum_units,
    .drum_tens = ac.eng2_epr_drum_tens,
    .drum_hundreds = ac.eng2_epr_drum_hundreds,
    .named = "Turbine_EPR_2",
    .knob_result = 1,
};

template <const EprEngine& S>
u32 KCALL ref_down(PixPoint*, u32) {
    return epr_ref_down(S.ref), S.knob_result;
}
template <const EprEngine& S>
u32 KCALL ref_up(PixPoint*, u32) {
    return epr_ref_up(S.ref), S.knob_result;
}

template <const EprEngine& S>
f64 KCALL units_drum(Element*) {
    return S.drum_units = drum_roll(S.drum_units, S.epr.digit[2], 10);
}
template <const EprEngine& S>
f64 KCALL tens_drum(Element*) {
    return S.drum_tens = drum_roll(S.drum_tens, S.epr.digit[1], 10);
}
template <const EprEngine& S>
f64 KCALL hundreds_drum(Element*) {
    return S.drum_hundreds = drum_roll(S.drum_hundreds, S.epr.digit[0], kEprHundredsPositions);
}
template <const EprEngine& S>
f64 KCALL ref_needle(Element*) {
    return clamp_back(S.ref, 100.0, 250.0);
}
template <const EprEngine& S>
f64 KCALL epr_needle(Element*) {
    return clamp_back(S.disp, 0.0, 250.0);
}

template <const EprEngine& S>
void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    epr_cycle(S.epr, S.disp, S.ref, S.named);
}
}  // namespace

KESTRANE_GAUGE(
    epr1,
    gauge("kestrane epr1_jm47", 109, update<kEngine1>)
        .elements(
            image(20528, 0x4001),                                                             // e0 dial
            moving(20576, 84, 61, kDrumFlags, drum_x, units_drum<kEngine1>, 0, 1, 0, 10),     // e1 units
            moving(20576, 71, 61, kDrumFlags, drum_x, tens_drum<kEngine1>, 0, 1, 0, 10),      // e2 tens
            moving(20576, 58, 61, kDrumFlags, drum_x, hundreds_drum<kEngine1>, 0, 1, 0, 4),   // e3 hundreds
            needle(20560, 53, 52, 3, 36, kNeedleFlags, ref_needle<kEngine1>, epr_ref_scale),  // e4 reference
            needle(20544, 53, 52, 4, 40, kNeedleFlags, epr_needle<kEngine1>, epr_scale))      // e5 EPR
        .mouse(repeat(85, 83, 12, 25, kCursorDown, ref_down<kEngine1>),
               repeat(97, 83, 12, 25, kCursorUp, ref_up<kEngine1>)))

KESTRANE_GAUGE(
    epr2,
    gauge("kestrane epr2_jm47", 109, update<kEngine2>)
        .elements(
            image(20528, 0x4001),                                                             // e0 dial
            moving(20576, 84, 61, kDrumFlags, drum_x, units_drum<kEngine2>, 0, 1, 0, 10),     // e1 units
            moving(20576, 71, 61, kDrumFlags, drum_x, tens_drum<kEngine2>, 0, 1, 0, 10),      // e2 tens
            moving(20576, 58, 61, kDrumFlags, drum_x, hundreds_drum<kEngine2>, 0, 1, 0, 4),   // e3 hundreds
            needle(20560, 53, 52, 3, 36, kNeedleFlags, ref_needle<kEngine2>, epr_ref_scale),  // e4 reference
            needle(20544, 53, 52, 4, 40, kNeedleFlags, epr_needle<kEngine2>, epr_scale))      // e5 EPR
        .mouse(repeat(85, 83, 12, 25, kCursorDown, ref_down<kEngine2>),
               repeat(97, 83, 12, 25, kCursorUp, ref_up<kEngine2>)))
