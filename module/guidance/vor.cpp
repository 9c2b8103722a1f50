// kestrane vor_jm47: RMI with the bearing needles of NAV 1 and NAV 2. A
// receiver tuned to an ILS gives no bearing.
#include "guidance/rmi.h"

namespace {
using namespace kestrane;
using namespace kestrane::rmi;

ModuleVar heading = token(84), nav1_code = token(46), nav2_code = token(55), nav1_brg = token(550),
          nav2_brg = token(59);

Rmi vor{};

bool is_ils(ModuleVar& code) {
    return (trunc_to<u32>(host::read(code)) & 0xC0) != 0;
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    card_cycle(vor, heading);
    const bool ac1 = ac.elec_ac_bus_1 == 1;
    const bool p1 = ac1 && ac.elec_dc_sec_bus == 1 && !is_ils(nav1_code);
    const bool p2 = ac1 && ac.elec_dc_sec_gen_bus == 1 && !is_ils(nav2_code);
    vor.needle[0] = needle_value(p1, host::read(nav1_brg));
    vor.needle[1] = needle_value(p2, host::read(nav2_brg));
}

f64 KCALL card(Element*) {
    return vor.card;
}
f64 KCALL needle_1(Element*) {
    return vor.needle[0];
}
f64 KCALL needle_2(Element*) {
    return vor.needle[1];
}
}  // namespace

KESTRANE_GAUGE(vor,
               gauge("kestrane vor_jm47", 181, update)
                   .elements(image(42112, 0x4001),  // e0 background
                             sprite(44560, 0, 0, 90, 90, kShown, 64, 64, nullptr, nullptr, card),  // e1 card
                             needle(44576, 90, 90, 5, 70, kShown, needle_1, linear),               // e2 NAV 1
                             needle(44592, 90, 90, 5, 70, kShown, needle_2, linear)))              // e3 NAV 2
