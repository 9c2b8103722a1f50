// kestrane ParkBLev_jm47: parking brake lever. The click asks the host to
// set or release the brake while a circuit can hold it; the lever shows the
// host's parking brake.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar park_brake = token(323);

inline constexpr u32 kParkingBrakes = 0x100D8;

u32 KCALL lever(PixPoint*, u32) {
    if (ac.hyd_green_press > 1400 || ac.hyd_red_press > 950)
        host::send_event(kParkingBrakes);
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool applied = host::read(park_brake) > 0;
    show(g, 1, applied);
    show(g, 2, !applied);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(parkblev,
    gauge("kestrane ParkBLev_jm47", 31, update)
        .elements(image(41008, 0x4001),             // e0 background
                  icon(46672, 0, 0, 0x40000003),    // e1 lever applied
                  icon(46688, 0, 0, 0x40000003))    // e2 lever released
        .mouse(click(0, 0, 23, 85, kCursorHand, lever)))
// clang-format on
