// kestrane panload: the panel shown when the aircraft is loaded, asking for a
// cold start on the ground (left half) or a ready-to-fly start (right half).
// The half under the pointer is highlighted; a click chooses and closes it.
#include "frame/panel_toggle.h"

namespace {
using namespace kestrane;

constexpr u8 kCold = 1, kReady = 2;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    show(g, 1, ac.panel_load_hover == kCold);
    show(g, 2, ac.panel_load_hover == kReady);
}

template <u8 Half>
u32 KCALL choose(PixPoint*, u32 flags) {
    if ((flags & kMouseMove) != 0)
        ac.panel_load_hover = Half;
    if ((flags & kMouseLeft) != 0) {
        ac.panel_load_choice = Half;
        host::send_event(kEventWindowClose, window::kPanelLoad);
        ac.panel_load_hover = 0;
    }
    return 0;
}

u32 KCALL outside(PixPoint*, u32) {
    ac.panel_load_hover = 0;
    return 0;
}
}  // namespace

KESTRANE_GAUGE(panload,
               gauge("kestrane panload", 539, update)
                   .elements(image(25680, 0x6),                 // e0
                             icon(25696, 72, 43, 0x40000006),   // e1 cold start highlighted
                             icon(25712, 309, 43, 0x40000006))  // e2 ready to fly highlighted
                   .mouse(area(0, 45, 270, 199, kCursorHand, kMouseLeft | kMouseMove, choose<kCold>),
                          area(270, 45, 269, 199, kCursorHand, kMouseLeft | kMouseMove, choose<kReady>),
                          hover(0, 0, 539, 45, outside), hover(0, 244, 539, 33, outside)))
