// kestrane setalt_jm47: altitude-alert selector. Five-digit selected
// altitude set by two knobs (tens and hundreds of feet), an inHg counter and
// the power flag of the alert.
#include "frame/gauge.h"
#include "instruments/baro_counter.h"

namespace {
using namespace kestrane;
using namespace kestrane::counter;

ModuleVar baro_inhg = token(76);

constexpr u32 kTop = 40000;

// ten-thousands .. units of the selected altitude
Drum selected[5] = {digit_drum(), digit_drum(), digit_drum(), digit_drum(), digit_drum()};
Drum inhg[4] = {digit_drum(), digit_drum(), digit_drum(), digit_drum()};

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    u32 a = ac.alt_alert_setting;
    for (int i = 0, div = 10000; i < 5; ++i, div /= 10) {
        selected[i].target = static_cast<f64>(a / div);
        a %= div;
    }
    f64 digit[4];
    split4(host::read(baro_inhg) * 100.0, digit);
    aim(inhg, digit);
    show(g, 1, ac.light_panel_night == 1);
    show(g, 2, ac.elec_gen_bus == 0);
}

template <u32 Step>
u32 KCALL down(PixPoint*, u32) {
    u32& a = ac.alt_alert_setting;
    a = a <= Step ? 0 : a - Step;
    return 0;
}
template <u32 Step>
u32 KCALL up(PixPoint*, u32) {
    u32& a = ac.alt_alert_setting;
    a = a >= kTop - Step ? kTop : a + Step;
    return 0;
}
}  // namespace

KESTRANE_GAUGE(setalt, gauge("kestrane setalt_jm47", 178, update)
                           .tip("altitude alert setting window")
                           .elements(image(43376, 0x4001),                 // e0 background
                                     icon(48064, 0, 0, 0x40000003),        // e1 lit background
                                     icon(48080, 70, 41, 0x40000003),      // e2 power flag
                                     digit<&selected[0]>(48096, 92, 41),   // e3 ten-thousands
                                     digit<&selected[1]>(48096, 102, 41),  // e4 thousands
                                     digit<&selected[2]>(48096, 112, 41),  // e5 hundreds
                                     digit<&selected[3]>(48096, 122, 41),  // e6 tens
                                     digit<&selected[4]>(48096, 132, 41),  // e7 units
                                     digit<&inhg[0]>(48112, 30, 36),       // e8 inHg thousands
                                     digit<&inhg[1]>(48112, 38, 36),       // e9 inHg hundreds
                                     digit<&inhg[2]>(48112, 46, 34),       // e10 inHg tens
                                     digit<&inhg[3]>(48112, 54, 34))       // e11 inHg units
                           .mouse(repeat(116, 38, 31, 25, kCursorDown, down<10>),
                                  repeat(147, 38, 31, 25, kCursorUp, up<10>),
                                  repeat(116, 63, 31, 25, kCursorDown, down<100>),
                                  repeat(147, 63, 31, 25, kCursorUp, up<100>)))
