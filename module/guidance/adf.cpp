// kestrane adf_jm47: RMI with the bearing needles of ADF 1 and ADF 2.
#include "guidance/rmi.h"

namespace {
using namespace kestrane;
using namespace kestrane::rmi;

ModuleVar heading = token(84), adf1_brg = token(39);

// The ADF 2 radial comes in radians; the gauge converts with this value of pi.
constexpr f64 kPi = 3.14116;

Rmi adf{};

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    card_cycle(adf, heading);
    const bool ac2 = ac.elec_ac_bus_2 == 1;
    const bool p1 = ac2 && ac.elec_dc_sec_bus == 1;
    const bool p2 = ac2 && ac.elec_dc_sec_gen_bus == 1;
    adf.needle[0] = needle_value(p1, p1 ? host::read(adf1_brg) : 0.0);
    adf.needle[1] =
        needle_value(p2, p2 ? bounded(host::calc("(A:ADF Radial:2,radians)") * 180.0 / kPi) : 0.0);
}

f64 KCALL card(Element*) {
    return adf.card;
}
f64 KCALL needle_1(Element*) {
    return adf.needle[0];
}
f64 KCALL needle_2(Element*) {
    return adf.needle[1];
}
}  // namespace

KESTRANE_GAUGE(adf,
               gauge("kestrane adf_jm47", 181, update)
                   .elements(image(42128, 0x4001),  // e0 background
                             sprite(44608, 0, 0, 90, 90, kShown, 64, 64, nullptr, nullptr, card),  // e1 card
                             needle(44624, 90, 90, 5, 70, kShown, needle_1, linear),               // e2 ADF 1
                             needle(44640, 90, 90, 5, 70, kShown, needle_2, linear)))              // e3 ADF 2
