// kestrane elec_ampvolt_line1_jm47 and elec_ampvolt_line2_jm47: TR line 1
// and 2 ammeters (left dial) and voltmeters (right dial), 15 .. 35 V with a
// suppressed zero.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

struct LineMeters {
    u16& amps;
    u8& volts;
};

constexpr LineMeters kLine1{.amps = ac.elec_line1_amps, .volts = ac.elec_line1_volts};
constexpr LineMeters kLine2{.amps = ac.elec_line2_amps, .volts = ac.elec_line2_volts};

template <const LineMeters& S>
f64 KCALL amps(Element*) {
    return clamp_back(S.amps, 0, 250);
}
template <const LineMeters& S>
f64 KCALL volts(Element*) {
    return clamp_back(S.volts, 0, 35);
}

NeedlePoint amps_scale[] = {{53, 127, 0, 0}, {23, 115, 50, 0}, {4, 86, 100, 0},
                            {4, 49, 150, 0}, {24, 21, 200, 0}, {53, 9, 250, 0}};
NeedlePoint volts_scale[] = {{80, 126, 0, 0},  {80, 126, 15, 0}, {116, 109, 20, 0},
                             {135, 68, 25, 0}, {117, 26, 30, 0}, {80, 8, 35, 0}};
}  // namespace

KESTRANE_GAUGE(elec_ampvolt_line1,
               gauge("kestrane elec_ampvolt_line1_jm47", 137, nullptr)
                   .elements(image(26624, 0x4001),                                              // e0
                             needle(30992, 60, 68, 4, 4, 0x4003, amps<kLine1>, amps_scale, 6),  // e1 amperes
                             needle(31008, 76, 68, 4, 4, 0x4003, volts<kLine1>, volts_scale, 6)))  // e2 volts

KESTRANE_GAUGE(elec_ampvolt_line2,
               gauge("kestrane elec_ampvolt_line2_jm47", 137, nullptr)
                   .elements(image(26640, 0x4001),                                              // e0
                             needle(31120, 60, 68, 4, 4, 0x4003, amps<kLine2>, amps_scale, 6),  // e1 amperes
                             needle(31136, 76, 68, 4, 4, 0x4003, volts<kLine2>, volts_scale, 6)))  // e2 volts
