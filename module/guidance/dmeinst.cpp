// kestrane dmeinst_jm47: stand-alone DME indicator with its own DME 1 / DME 2
// selector. It writes the same distance and drum values as the HSI.
#include "frame/gauge.h"
#include "guidance/hsi.h"

namespace {
using namespace kestrane;

ModuleVar dme1 = token(31), dme2 = token(35);

u8 selector = 1;
u8 flag = 0;

void dme_cycle(GaugeHeader* g) {
    show(g, 4, flag == 1);  // last cycle's flag
    const bool two = selector == 2;
    show(g, 5, !two);
    show(g, 6, two);
    const f64 d = host::read(two ? dme2 : dme1);
    const bool bus = two ? ac.elec_dc_sec_gen_bus == 1 : ac.elec_dc_sec_bus == 1;
    const u8 mode = two ? ac.nav2_rx_mode : ac.nav1_rx_mode;
    const bool flagged = d < 0.0 || !bus || mode < 2 || ac.elec_tadg_on == 0;
    flag = flagged ? 1 : 0;
    ac.dme_distance = flagged ? 0.0 : d;
    if (ac.elec_ac_bus_1 == 1 && ac.elec_tadg_on == 1)
        hsi::dme_shown = nav::dme_digits(ac.dme_distance);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        dme_cycle(g);
}

u32 KCALL select(PixPoint*, u32) {
    selector = selector == 2 ? 1 : 2;
    return 0;
}

f64 KCALL hundreds(Element*) {
    return clamp_back(hsi::dme_shown.hundreds, 0.0, 10.0);
}
f64 KCALL tens(Element*) {
    return clamp_back(hsi::dme_shown.tens, 0.0, 10.0);
}
f64 KCALL units(Element*) {
    return clamp_back(hsi::dme_shown.units, 0.0, 10.0);
}

constexpr u32 kShown = 0x4003;
constexpr u32 kHiddenIcon = 0x40000003;
}  // namespace

KESTRANE_GAUGE(dmeinst,
               gauge("kestrane dmeinst_jm47", 136, update)
                   .elements(image(42336, 0x4001),                                           // e0 background
                             moving(44496, 37, 24, kShown, nullptr, hundreds, 0, 0, 0, 10),  // e1 hundreds
                             moving(44496, 51, 24, kShown, nullptr, tens, 0, 0, 0, 10),      // e2 tens
                             moving(44496, 65, 24, kShown, nullptr, units, 0, 0, 0, 10),     // e3 units
                             icon(44512, 37, 32, kHiddenIcon),                               // e4 flag
                             icon(44528, 76, 34, kHiddenIcon),                               // e5 DME 1
                             icon(44544, 76, 34, kHiddenIcon))                               // e6 DME 2
                   .mouse(click(7, 11, 124, 52, kCursorHand, select)))
