// The meters of the battery and generator panel, one needle each and no
// callback of their own: kestrane elec_amp_batnorm_jm47 and
// elec_amp_batstby_jm47 (battery ammeters, charge to the left),
// elec_amp_gen1_jm47 and elec_amp_gen2_jm47 (generator ammeters),
// elec_volt_dc_jm47 and elec_volt_ac_jm47 (voltmeters, source or bus chosen
// on the selector panels).
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::art;

// What a needle shows, clamped to its dial.
template <class T>
struct Meter {
    T& value;
    f64 lo, hi;
};

constexpr Meter<i8> kNorm{ac.elec_batt_norm_amps, -120, 120};
constexpr Meter<i32> kStby{ac.elec_batt_stby_amps, -250, 250};
constexpr Meter<u8> kGen1{ac.elec_gen1_amps, 0, 50};
constexpr Meter<u8> kGen2{ac.elec_gen2_amps, 0, 50};
constexpr Meter<u8> kDc{ac.elec_dc_volts, 0, 35};
constexpr Meter<u8> kAc{ac.elec_ac_volts, 0, 130};

template <const auto& M>
f64 KCALL reading(Element*) {
    return clamp_back(M.value, M.lo, M.hi);
}

NeedlePoint norm_scale[] = {
    {9, 51, 120, 0}, {34, 27, 60, 0}, {67, 14, 0, 0}, {102, 27, -60, 0}, {126, 52, -120, 0}};
NeedlePoint stby_scale[] = {{8, 51, 250, 0}, {67, 16, 0, 0}, {126, 51, -250, 0}};
NeedlePoint gen_scale[] = {{9, 44, 0, 0},   {30, 24, 10, 0},  {54, 14, 20, 0},
                           {81, 14, 30, 0}, {107, 22, 40, 0}, {127, 44, 50, 0}};
NeedlePoint dc_scale[] = {
    {9, 50, 0, 0}, {37, 23, 10, 0}, {77, 15, 20, 0}, {114, 33, 30, 0}, {127, 51, 35, 0}};
NeedlePoint ac_scale[] = {{8, 50, 0, 0}, {43, 17, 50, 0}, {98, 20, 100, 0}, {126, 42, 130, 0}};
}  // namespace

// clang-format off
KESTRANE_GAUGE(elec_amp_batnorm,
    gauge("kestrane elec_amp_batnorm_jm47", 137, nullptr)
        .elements(image(26384, 0x4001),                                                     // e0 dial
                  needle(art(24, 1), 67, 68, 5, 5, 0x4003, reading<kNorm>, norm_scale, 6)))  // e1 needle

KESTRANE_GAUGE(elec_amp_batstby,
    gauge("kestrane elec_amp_batstby_jm47", 137, nullptr)
        .elements(image(26400, 0x4001),                                                     // e0 dial
                  needle(art(25, 1), 67, 68, 5, 5, 0x4003, reading<kStby>, stby_scale, 6)))  // e1 needle

KESTRANE_GAUGE(elec_amp_gen1,
    gauge("kestrane elec_amp_gen1_jm47", 137, nullptr)
        .elements(image(26416, 0x4001),                                                     // e0 dial
                  needle(art(26, 1), 68, 64, 5, 5, 0x4003, reading<kGen1>, gen_scale, 6)))  // e1 needle

KESTRANE_GAUGE(elec_amp_gen2,
    gauge("kestrane elec_amp_gen2_jm47", 137, nullptr)
        .elements(image(26432, 0x4001),                                                     // e0 dial
                  needle(art(27, 1), 68, 64, 5, 5, 0x4003, reading<kGen2>, gen_scale, 6)))  // e1 needle

KESTRANE_GAUGE(elec_volt_dc,
    gauge("kestrane elec_volt_dc_jm47", 137, nullptr)
        .elements(image(26448, 0x4001),                                                     // e0 dial
                  needle(art(28, 1), 68, 68, 5, 5, 0x4003, reading<kDc>, dc_scale, 6)))     // e1 needle

KESTRANE_GAUGE(elec_volt_ac,
    gauge("kestrane elec_volt_ac_jm47", 137, nullptr)
        .elements(image(26464, 0x4001),                                                     // e0 dial
                  needle(art(29, 1), 67, 66, 5, 5, 0x4003, reading<kAc>, ac_scale, 6)))     // e1 needle
// clang-format on
