// kestrane DoorOpen_jm47: forward main door button and light. On the ground
// the request opens or closes the door for the other add-on modules of the
// aircraft; taxiing fast drops the request.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

constexpr const char* kDoorVar = "forward_door_open";

ModuleVar on_ground = token(60), speed = token(61), exit_open = token(868);

u32 KCALL toggle(PixPoint*, u32) {
    if (is_on(host::read(on_ground)))
        ac.door_fwd_request = ac.door_fwd_request == 0 ? 1 : 0;
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    if (is_on(host::read(on_ground))) {
        const f64 door = host::named_get(kDoorVar);
        ac.door_fwd_value = door;
        if (ac.door_fwd_request != 0) {
            if (door == 0.0)
                host::named_set(kDoorVar, 1.0);
        } else if (door > 0.0) {
            host::named_set(kDoorVar, 0.0);
        }
        if (host::read(speed) > 60.0)
            ac.door_fwd_request = 0;
    }
    const bool open = host::read(exit_open) > 0.1 || ac.door_fwd_value > 0.0;
    show(g, 0, open && ac.elec_ess_bus == 1);
}
}  // namespace

KESTRANE_GAUGE(dooropen, gauge("kestrane DoorOpen_jm47", 15, update)
                             .tip("open/close forward main door")
                             .elements(image(42992, 0x40004001))  // e0 door open light
                             .mouse(click(0, 0, 17, 17, kCursorHand, toggle)))
