// kestrane spoilh_jm47: ground spoiler arming handle. Armed on the ground the
// spoilers deploy on a rejected take-off (engine 1 beyond 84 %, then pulled
// back); armed in flight they deploy at touchdown. They disarm by themselves
// once the airbrakes have been fully out and back in on the ground.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar left_airbrake = token(326), rto_value = token(128), height = token(614), on_ground = token(60),
          n1_engine1 = token(624);

constexpr const char* kExtract = "gnd_spoilers_extract";
constexpr u32 kAirbrakesOut = 0x10210;

enum : u8 { kDisarmed = 0, kArmed = 1, kDeployed = 2 };
enum : u8 { kNotArmed = 0, kArmedOnGround = 1, kArmedInFlight = 2 };

u32 KCALL disarm(PixPoint*, u32) {
    ac.spoil_gnd_state = kDisarmed;
    ac.spoil_gnd_arm_mode = kNotArmed;
    ac.spoil_gnd_n1_max = 0;
    ac.spoil_ind_timer = 10;  // lamp test on the spoiler indicator
    return 0;
}

u32 KCALL arm(PixPoint*, u32) {
    ac.spoil_gnd_state = kArmed;
    ac.spoil_gnd_arm_mode = is_on(host::read(on_ground)) ? kArmedOnGround : kArmedInFlight;
    return 0;
}

void deploy(f64 extract) {
    ac.spoil_gnd_state = kDeployed;
    if (host::read(left_airbrake) < 16382)
        host::send_event(kAirbrakesOut);
    if (extract == 0.0)
        host::named_set(kExtract, 1.0);
    ac.spoil_gnd_n1_max = 0;
    ac.spoil_gnd_arm_mode = kArmedOnGround;
}

void spoilers_cycle() {
    if (ac.spoil_gnd_cycle == 1) {
        ac.spoil_gnd_arm_mode = kNotArmed;
        ac.spoil_gnd_cycle = 0;
        ac.spoil_gnd_n1_max = 0;
        ac.spoil_gnd_state = kDisarmed;
    }
    const f64 agl = host::read(height);
    if (!(agl < 1700))
        return;
    const f64 extract = host::named_get(kExtract);
    const bool ground = is_on(host::read(on_ground));
    const bool green = ac.hyd_green_press > 1750;
    const bool powered = ac.elec_ess_bus == 1 && green;

    if (ac.spoil_gnd_state == kArmed && ground) {
        const f64 n1 = host::read(n1_engine1);
        if (n1 > static_cast<f64>(ac.spoil_gnd_n1_max))
            ac.spoil_gnd_n1_max = trunc_to<u32>(n1);
    }
    if (ac.spoil_gnd_state == kArmed && ground && ac.spoil_gnd_arm_mode == kArmedOnGround &&
        ac.spoil_gnd_n1_max > 84 && host::read(rto_value) < 1000 && powered)
        deploy(extract);
    if (ground && ac.spoil_gnd_arm_mode == kArmedInFlight && powered)
        deploy(extract);

    const bool clear = (ac.spoil_gnd_arm_mode == kNotArmed && powered) || !green || agl >= 5.0;
    if (clear && is_on(extract))
        host::named_set(kExtract, 0.0);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    spoilers_cycle();
    const bool armed = ac.spoil_gnd_arm_mode == kArmedOnGround || ac.spoil_gnd_arm_mode == kArmedInFlight;
    show(g, 1, armed);
    show(g, 2, !armed);
}
}  // namespace

KESTRANE_GAUGE(spoilh,
               gauge("kestrane spoilh_jm47", 63, update)
                   .elements(image(40960, 0x4001),            // e0
                             icon(40961, 0, 56, 0x40000003),  // e1 armed
                             icon(40962, 0, 0, 0x40000003))   // e2 disarmed
                   .mouse(click(0, 0, 63, 56, kCursorDown, disarm), click(0, 56, 63, 57, kCursorUp, arm)))
