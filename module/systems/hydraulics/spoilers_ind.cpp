// kestrane spoilers_ind_jm47: ground spoiler lamps. Amber while the left
// airbrake travels and during the lamp test that the disarm click starts;
// deployed lamp once the ground spoilers have deployed and are fully out.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar left_airbrake = token(326), on_ground = token(60);

constexpr f64 kExtended = 16000;

bool lamp_test(u8 timer) {
    return timer >= 3 && timer <= 10;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    u8& timer = ac.spoil_ind_timer;
    if (ac.spoil_gnd_state == 2)
        timer = 1;
    if (lamp_test(timer))
        --timer;
    if (timer == 2)
        timer = 0;

    const f64 left = host::read(left_airbrake);
    bool amber = false, deployed = false;
    if (timer == 0 || ac.elec_ess_bus != 1 || host::read(on_ground) == 0.0) {
        // dark
    } else if (left > ac.flt_airbrake_retract_thr && left < kExtended) {
        amber = true;
    } else if (lamp_test(timer)) {
        amber = true;
    } else if (left >= kExtended && timer == 1) {
        deployed = true;
    } else {
        timer = 0;
    }
    show(g, 1, amber);
    show(g, 2, deployed);
}
}  // namespace

KESTRANE_GAUGE(spoilers_ind, gauge("kestrane spoilers_ind_jm47", 31, update)
                                 .elements(image(42304, 0x4001),            // e0
                                           icon(42305, 0, 0, 0x40000003),   // e1 amber
                                           icon(42306, 0, 0, 0x40000003)))  // e2 deployed
