// kestrane epr2_jm47: engine 2 EPR, with the reference needle and its three
// digit drums set by the knob below the dial.
#include "frame/gauge.h"
#include "systems/engines/eng_instr_rules.h"

namespace {
using namespace kestrane;
using namespace kestrane::eng_instr;

Epr epr{};

// unlike engine 1's, this knob answers 1 to the host
u32 KCALL ref_down(PixPoint*, u32) {
    return epr_ref_down(ac.eng2_epr_ref), 1;
}
u32 KCALL ref_up(PixPoint*, u32) {
    return epr_ref_up(ac.eng2_epr_ref), 1;
}

f64 KCALL units_drum(Element*) {
    return ac.eng2_epr_drum_units = drum_roll(ac.eng2_epr_drum_units, epr.digit[2], 10);
}
f64 KCALL tens_drum(Element*) {
    return ac.eng2_epr_drum_tens = drum_roll(ac.eng2_epr_drum_tens, epr.digit[1], 10);
}
f64 KCALL hundreds_drum(Element*) {
    return ac.eng2_epr_drum_hundreds =
               drum_roll(ac.eng2_epr_drum_hundreds, epr.digit[0], kEprHundredsPositions);
}
f64 KCALL ref_needle(Element*) {
    return clamp_back(ac.eng2_epr_ref, 100.0, 250.0);
}
f64 KCALL epr_needle(Element*) {
    return clamp_back(ac.eng2_epr_disp, 0.0, 250.0);
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    epr_cycle(epr, ac.eng2_epr_disp, ac.eng2_epr_ref, "Turbine_EPR_2");
}
}  // namespace

KESTRANE_GAUGE(
    epr2,
    gauge("kestrane epr2_jm47", 109, update)
        .elements(image(20528, 0x4001),                                                   // e0 dial
                  moving(20576, 84, 61, kDrumFlags, drum_x, units_drum, 0, 1, 0, 10),     // e1 units
                  moving(20576, 71, 61, kDrumFlags, drum_x, tens_drum, 0, 1, 0, 10),      // e2 tens
                  moving(20576, 58, 61, kDrumFlags, drum_x, hundreds_drum, 0, 1, 0, 4),   // e3 hundreds
                  needle(20560, 53, 52, 3, 36, kNeedleFlags, ref_needle, epr_ref_scale),  // e4 reference
                  needle(20544, 53, 52, 4, 40, kNeedleFlags, epr_needle, epr_scale))      // e5 EPR
        .mouse(repeat(85, 83, 12, 25, kCursorDown, ref_down), repeat(97, 83, 12, 25, kCursorUp, ref_up)))
