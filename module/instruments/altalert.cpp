// kestrane altalert_jm47: altitude-alert light and ALTRE chime. Approaching
// the selected altitude lights it steady with one chime; deviating from it
// after capture makes it flash. Frozen with the gear down, in level flight
// and without the generator bus.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1);
ModuleVar vertical_speed = token(65);  // only its sign
ModuleVar altitude = token(74);        // feet
ModuleVar gear_leg = token(332);       // 0.0 retracted

constexpr u8 kQuiet = 0, kApproaching = 1, kDeviating = 2;
constexpr i32 kFlashTicks = 4;  // on 4, off 4

u8 chime_given = 0;
u8 flash_running = 0;
u8 flash_on = 0;
i32 flash_start = 0;

void reset() {
    ac.alt_alert_state = kQuiet;
    chime_given = 0;
    flash_running = 0;
}

void approach() {
    if (ac.alt_alert_state != kQuiet)
        return;
    if (chime_given == 0) {
        sound::play(sound::kAltRe);
        chime_given = 1;
    }
    ac.alt_alert_state = kApproaching;
}

// The bands lie ahead of the aircraft: approach from 1000 to 150 ft before
// the selected altitude, deviation from 500 to 1000 ft past it.
void watch(f64 vs, f64 h) {
    const f64 a = static_cast<f64>(ac.alt_alert_setting);
    if (vs < 0.0) {
        if (h > a + 150.0 && h < a + 1000.0)
            approach();
        else if (h > a - 1000.0 && h < a - 500.0)
            ac.alt_alert_state = kDeviating;
        else
            reset();
    } else if (vs > 0.0) {
        if (h > a - 1000.0 && h < a - 150.0)
            approach();
        else if (h > a + 500.0 && h < a + 1000.0)
            ac.alt_alert_state = kDeviating;
        else
            reset();
    }
}

void flash(f64 now) {
    if (flash_running == 0) {
        flash_running = 1;
        flash_start = trunc_to<i32>(now);
        flash_on = 1;
    } else if (now >= static_cast<f64>(flash_start) + 2 * kFlashTicks) {
        flash_start = trunc_to<i32>(now);
        flash_on = 1;
    } else if (now >= static_cast<f64>(flash_start) + kFlashTicks) {
        flash_on = 0;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 now = host::read(tick);
    const f64 vs = host::read(vertical_speed);
    const f64 h = host::read(altitude);
    if (host::read(gear_leg) == 0.0 && ac.elec_gen_bus == 1)
        watch(vs, h);
    bool lit = false;
    if (ac.alt_alert_state == kDeviating) {
        flash(now);
        lit = flash_on == 1;
    } else {
        lit = ac.alt_alert_state == kApproaching;
    }
    show(g, 0, lit && ac.elec_ess_bus == 1);
}
}  // namespace

// The light is the gauge's only image.
KESTRANE_GAUGE(altalert,
               gauge("kestrane altalert_jm47", 15, update).elements(image(43392, 0x40000007)))  // e0 light
