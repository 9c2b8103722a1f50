// kestrane panel_display: an invisible strip along the top edge of the screen.
// Moving the pointer over it opens the overview panel; a right click stops
// that, a left click allows it again.
#include "frame/panel_toggle.h"

namespace {
using namespace kestrane;

constexpr u8 kStripOff = 10;   // the strip does not open the overview
constexpr u8 kStripFirst = 2;  // mode at load

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}

u32 KCALL strip(PixPoint*, u32 flags) {
    if ((flags & kMouseMove) != 0 && ac.panel_overview_mode != kStripOff) {
        host::send_event(kEventWindowOpen, window::kOverview);
        if (ac.panel_overview_mode == kStripFirst)
            ac.panel_overview_mode = 0;
    }
    if ((flags & kMouseRight) != 0)
        ac.panel_overview_mode = kStripOff;
    if ((flags & kMouseLeft) != 0 && ac.panel_overview_mode == kStripOff)
        ac.panel_overview_mode = 0;
    return 0;
}
}  // namespace

KESTRANE_GAUGE(panel_display,
               gauge("kestrane panel_display", 1280, update)
                   .tip("display overview panel")
                   .elements(image(25392, 0x1))  // e0
                   .mouse(area(0, 0, 1280, 10, kCursorHand, kMouseRight | kMouseLeft | kMouseMove, strip)))
