// kestrane aprdy_jm47: autopilot master switch and READY light. The
// autopilot is ready with DC bus 2, the 26 V instrument bus, the gyro
// reference, green or blue hydraulics and the master switch on.
#include "guidance/ap_panel.h"

namespace {
using namespace kestrane;
using namespace kestrane::ap;

// Turning the master off under an engaged autopilot first drops the host
// autopilot and every hold.
constexpr u32 kDisengage[] = {kApOff,     kClearHold104, kHdgHoldOff, kClearNav1,
                              kClearNav2, kClearLoc,     kMasterOff};

u32 KCALL master(PixPoint*, u32) {
    if (ac.ap_master_sw == 1 && is_on(host::read(t_engaged))) {
        for (u32 e : kDisengage)
            host::send_event(e);
    }
    set_switch(ac.ap_master_sw, ac.ap_master_sw == 1 ? 0 : 1);
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool hydraulics = ac.hyd_green_press > 1400 || ac.hyd_blue_press > 1400;
    ac.ap_ready = ac.elec_dc_bus_2 == 1 && ac.elec_ac_26v_bus == 1 && ac.elec_tadg_on == 1 && hydraulics &&
                          ac.ap_master_sw == 1
                      ? 1
                      : 0;
    show(g, 2, ac.ap_master_sw == 1);
    show(g, 3, ac.ap_master_sw != 1);
    show(g, 4, ac.ap_ready == 1 && host::read(t_engaged) == 0.0);
}
}  // namespace

KESTRANE_GAUGE(aprdy, gauge("kestrane aprdy_jm47", 231, update)
                          .elements(image(41040, 0x4001),                   // e0 background
                                    icon(ap::art(12), 0, 0, 0x4003),        // e1 overlay
                                    icon(ap::art(13), 57, 9, 0x40000003),   // e2 switch on
                                    icon(ap::art(14), 57, 18, 0x40000003),  // e3 switch off
                                    icon(ap::art(15), 172, 1, 0x40000003))  // e4 READY
                          .mouse(click(30, 0, 61, 53, kCursorHand, master)))
