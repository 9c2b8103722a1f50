// kestrane panel_overview: a small map of the whole cockpit. The region under
// the pointer is highlighted and a click opens or closes its panel windows;
// five buttons open the clock, the compass, the failures panel and the GPS,
// or close the overview. Unless the top strip was told not to open it, every
// action also closes the overview.
#include "frame/panel_toggle.h"
#include "guidance/compass.h"

namespace {
using namespace kestrane;

constexpr u8 kStripOff = 10;  // the top strip does not open the overview
constexpr int kGroups = 8;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    for (int n = 1; n <= kGroups; ++n)
        show(g, n, ac.panel_overview_hover == n);
}

// The end of every action: close the overview when the strip reopens it.
void done() {
    if (ac.panel_overview_mode == 0)
        host::send_event(kEventWindowClose, window::kOverview);
    ac.panel_overview_hover = 0;
}

// A region: hovering highlights its group, a click toggles its windows.
template <u8 Group, u32... Idents>
u32 KCALL region(PixPoint*, u32 flags) {
    if ((flags & kMouseMove) != 0)
        ac.panel_overview_hover = Group;
    if ((flags & kMouseLeft) != 0) {
        (host::send_event(kEventWindowToggle, Idents), ...);
        done();
    }
    return 0;
}

// Between the regions: nothing highlighted.
u32 KCALL neutral(PixPoint*, u32 flags) {
    if ((flags & kMouseMove) != 0)
        ac.panel_overview_hover = 0;
    return 0;
}

template <u32 Ident>
u32 KCALL open_button(PixPoint*, u32 flags) {
    if ((flags & kMouseLeft) != 0) {
        host::send_event(kEventWindowToggle, Ident);
        done();
    }
    return 0;
}

u32 KCALL compass_button(PixPoint* p, u32 flags) {
    if ((flags & kMouseLeft) != 0) {
        compass::toggle(p, flags);
        done();
    }
    return 0;
}

u32 KCALL close_button(PixPoint*, u32 flags) {
    if ((flags & kMouseLeft) != 0) {
        host::send_event(kEventWindowClose, window::kOverview);
        if (ac.panel_overview_mode != kStripOff)
            ac.panel_overview_mode = 0;
        done();
    }
    return 0;
}

constexpr u32 kRegion = kMouseLeft | kMouseMove;
constexpr u32 kHighlight = 0x40000003;

using namespace window;
constexpr auto electrical = region<1, kElectrical>;
constexpr auto hydraulics = region<2, kHydraulic, kServos>;
constexpr auto pedestal = region<3, kPedestal>;
constexpr auto fuel = region<4, kFuel>;
constexpr auto tadg_battery = region<5, kTadg, kBattery>;
constexpr auto upper2 = region<6, kUpper2>;
constexpr auto upper3 = region<7, kUpper3>;
constexpr auto gear = region<8, kGear>;
}  // namespace

KESTRANE_GAUGE(panel_overview,
               gauge("kestrane panel_overview", 539, update)
                   .elements(image(25408, 0x4002),               // e0
                             icon(25424, 444, 108, kHighlight),  // e1 electrical
                             icon(25440, 244, 95, kHighlight),   // e2 hydraulics and servos
                             icon(25456, 226, 270, kHighlight),  // e3 pedestal
                             icon(25472, 310, 262, kHighlight),  // e4 fuel
                             icon(25600, 100, 272, kHighlight),  // e5 TADG and battery
                             icon(25616, 187, 129, kHighlight),  // e6 Upper2
                             icon(25632, 195, 71, kHighlight),   // e7 Upper3
                             icon(25648, 297, 222, kHighlight))  // e8 gear indicator
                   .mouse(area(428, 71, 111, 200, kCursorHand, kRegion, electrical),
                          area(349, 71, 79, 105, kCursorHand, kRegion, hydraulics),
                          area(353, 271, 94, 59, kCursorHand, kRegion, hydraulics),
                          area(214, 361, 93, 36, kCursorHand, kRegion, hydraulics),
                          area(208, 251, 45, 79, kCursorHand, kRegion, pedestal),
                          area(253, 294, 33, 36, kCursorHand, kRegion, pedestal),
                          area(286, 251, 21, 79, kCursorHand, kRegion, pedestal),
                          area(253, 251, 33, 43, kCursorHand, kRegion, pedestal),
                          area(307, 251, 46, 79, kCursorHand, kRegion, fuel),
                          area(100, 251, 108, 79, kCursorHand, kRegion, tadg_battery),
                          area(184, 129, 165, 47, kCursorHand, kRegion, upper2),
                          area(184, 71, 165, 58, kCursorHand, kRegion, upper3),
                          area(286, 220, 67, 31, kCursorHand, kRegion, gear), hover(104, 0, 435, 71, neutral),
                          hover(0, 53, 104, 198, neutral), hover(104, 71, 80, 180, neutral),
                          hover(184, 176, 102, 75, neutral), hover(286, 176, 67, 44, neutral),
                          hover(353, 330, 75, 95, neutral), hover(0, 251, 100, 199, neutral),
                          hover(100, 330, 114, 67, neutral), hover(100, 397, 62, 53, neutral),
                          hover(214, 330, 93, 31, neutral), hover(307, 330, 75, 67, neutral),
                          hover(382, 330, 157, 120, neutral), hover(447, 271, 92, 59, neutral),
                          click(162, 397, 55, 53, kCursorHand, open_button<kClock>),
                          click(217, 397, 55, 53, kCursorHand, compass_button),
                          click(272, 397, 55, 53, kCursorHand, open_button<kFailures>),
                          click(327, 397, 55, 53, kCursorHand, open_button<kGps>),
                          click(0, 0, 52, 53, kCursorHand, close_button)))
