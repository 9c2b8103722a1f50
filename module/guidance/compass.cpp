// kestrane compass_jm47: standby compass card. A click shows or hides the
// host's compass.
#include "guidance/compass.h"

#include "frame/gauge.h"

namespace kestrane::compass {
u32 KCALL toggle(PixPoint*, u32) {
    host::send_event(ac.compass_shown != 1 ? 66513 : 66514);
    ac.compass_shown = ac.compass_shown == 1 ? 0 : 1;
    return 0;
}
}  // namespace kestrane::compass

namespace {
using namespace kestrane;

ModuleVar compass_heading = token(83);

// The card strip slides across: 360 - heading, 0 off the strip.
f64 KCALL card_x(Element*) {
    const f64 x = 360.0 - host::read(compass_heading);
    return x >= 0.0 && x <= 360.0 ? x : 0.0;
}

// The host fails the card by itself.
constexpr FailureEntry kCardFailure[] = {{12, 1}, {0, 0}};
}  // namespace

KESTRANE_GAUGE(compass, gauge("kestrane compass_jm47", 118, nullptr)
                            .help(0xAB77)
                            .elements(image(42832, 0x4001),  // e0 background
                                      failing(moving(44656, 22, 41, 0x4003, card_x, nullptr, 0, 360, 0, 0),
                                              kCardFailure))  // e1 card
                            .mouse(click(0, 0, 118, 124, kCursorHand, compass::toggle)))
