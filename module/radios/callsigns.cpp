// kestrane callsigns_jm47: call-sign panel, two switches that sound the high
// and low chimes while the battery holds charge.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar unused_token = token(10);

bool battery_charged() {
    return ac.elec_batt_charge > 0;
}

u32 KCALL sw_up(PixPoint*, u32) {
    if (set_switch(ac.radio_callsign_sw, 1) && battery_charged())
        sound::play(sound::kHi);
    return 0;
}
u32 KCALL sw_down(PixPoint*, u32) {
    const u8 was = ac.radio_callsign_sw;
    if (set_switch(ac.radio_callsign_sw, 0) && battery_charged() && was != 2)
        sound::play(sound::kHi);
    return 0;
}
u32 KCALL sw_top(PixPoint*, u32) {
    set_switch(ac.radio_callsign_sw, 2);
    return 0;
}
u32 KCALL sw_b_up(PixPoint*, u32) {
    if (set_switch(ac.radio_callsign_sw_b, 1) && battery_charged())
        sound::play(sound::kLo);
    return 0;
}
u32 KCALL sw_b_down(PixPoint*, u32) {
    if (set_switch(ac.radio_callsign_sw_b, 0) && battery_charged())
        sound::play(sound::kLo);
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    host::read(unused_token);
    show(g, 1, ac.radio_callsign_sw == 0);
    show(g, 2, ac.radio_callsign_sw == 1);
    show(g, 5, ac.radio_callsign_sw == 2);
    show(g, 3, ac.radio_callsign_sw_b == 1);
    show(g, 4, ac.radio_callsign_sw_b == 0);
}
}  // namespace

KESTRANE_GAUGE(callsigns, gauge("kestrane callsigns_jm47", 183, update)
                              .elements(image(10304, 0x4001),              // e0
                                        icon(10080, 122, 46, 0x40000003),  // e1 switch at 0
                                        icon(10048, 122, 46, 0x40000003),  // e2 switch at 1
                                        icon(10048, 160, 46, 0x40000003),  // e3 second switch at 1
                                        icon(10064, 160, 36, 0x40000003),  // e4 second switch at 0
                                        icon(10064, 122, 36, 0x40000003))  // e5 switch at 2
                              .mouse(click(111, 58, 32, 15, kCursorUp, sw_up),
                                     click(111, 43, 32, 15, kCursorDown, sw_down),
                                     click(111, 28, 32, 15, kCursorUp, sw_top),
                                     click(148, 50, 32, 21, kCursorHand, sw_b_up),
                                     click(148, 29, 32, 21, kCursorHand, sw_b_down)))
