// Diagnostic gauge: four text lines showing host tokens, or, with the
// diagnostic flag set by a click, three values of the aircraft state.
#include "frame/format.h"
#include "frame/gauge_def.h"
#include "frame/host.h"
#include "frame/state.h"

namespace {
using namespace kestrane;

u8 diagnostic = 0;

f64 put(Element* e, f64 value) {
    StringData& s = e->u.str;
    if (s.text != nullptr)
        format_fixed6(s.text, s.char_count + 1u, value);
    return value;
}

f64 KCALL line_token(Element* e) {
    return put(e, host::read(e->u.str.source));
}

f64 KCALL line_fuel_temp_lo(Element* e) {
    return diagnostic ? put(e, ac.fuel_temp_test_lo_rh) : line_token(e);
}
f64 KCALL line_fuel_temp_hi(Element* e) {
    return diagnostic ? put(e, ac.fuel_temp_test_hi_rh) : line_token(e);
}
f64 KCALL line_alert_code(Element* e) {
    return diagnostic ? put(e, ac.warn_alert_code) : line_token(e);
}

u32 KCALL toggle_diagnostic(PixPoint*, u32) {
    diagnostic = diagnostic ? 0 : 1;
    return 0;
}

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}

constexpr def::TextStyle kAmber{0x0080FF, 0x000000, 0x5C5C5C};
}  // namespace

KESTRANE_GAUGE(testgauge2k, gauge("testgauge2k", 36, update)
                                .help(0xAA1A)
                                .elements(image(1, 0x1),               // e0
                                          icon(16, 0, 0, 0x40000006),  // e1
                                          branch(0, text(0, 36, 80, 30, 6, kAmber, 905, line_token)),
                                          branch(0, text(0, 72, 80, 30, 6, kAmber, 883, line_fuel_temp_lo)),
                                          branch(0, text(0, 108, 80, 30, 6, kAmber, 884, line_fuel_temp_hi)),
                                          branch(0, text(0, 144, 80, 30, 6, kAmber, 13, line_alert_code)))
                                .mouse(click(0, 0, 36, 17, kCursorHand, toggle_diagnostic)))
