// kestrane ParkBind_jm47: parking brake light, and the airport stairs. A
// click on the light asks for the stairs on the ground; other add-on modules
// bring them while ground power is available and the parking brake is set.
#include "frame/gauge.h"
#include "hyd_pumps.h"

namespace {
using namespace kestrane;

ModuleVar on_ground = token(60), park_brake = token(323), height = token(614);

constexpr const char* kStairs = "airport_stairs_available";

u32 KCALL stairs(PixPoint*, u32) {
    if (is_on(host::read(on_ground)))
        ac.stairs_request = ac.stairs_request ? 0 : 1;
    return 0;
}

void stairs_update(bool ground, f64 park) {
    if (!(host::read(height) <= 2.0 || ground))
        return;
    const f64 available = host::named_get(kStairs);
    if (ac.stairs_request && (ac.elec_gndpwr_available == 0 || !ground || !(park > 0.0)))
        ac.stairs_request = 0;
    if (ac.stairs_request) {
        if (available == 0.0)
            host::named_set(kStairs, 1.0);
    } else if (available > 0.0) {
        host::named_set(kStairs, 0.0);
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 park = host::read(park_brake);
    show(g, 0, park > 0.0 && hyd::ess_bus());
    stairs_update(is_on(host::read(on_ground)), park);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(parkbind,
    gauge("kestrane ParkBind_jm47", 15, update)
        .tip("display/hide airport stairs")
        .elements(image(42960, 0x40004001))  // e0 parking brake light
        .mouse(click(0, 0, 17, 17, kCursorHand, stairs)))
// clang-format on
