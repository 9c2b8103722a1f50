// kestrane toggle_pan_tadg: toggle of the tadg and battery switch panels. Its
// install and removal also start and release the module's sounds, and its
// cycle carries the consequences of a hydraulic pressure loss: airbrakes,
// nose-wheel steering, the automatic parking brake and frozen flight controls.
#include "frame/panel_toggle.h"

namespace {
using namespace kestrane;

ModuleVar on_ground = token(60), airspeed = token(61), aileron = token(313), rudder = token(316),
          elevator = token(317), left_brake = token(320), park_brake = token(323), airbrakes = token(326);

constexpr u32 kAirbrakesIn = 66065, kAirbrakesOut = 66064, kAirbrakesBlown = 65786;
constexpr u32 kCentreSteering = 65689;
constexpr u32 kParkBrake = 66310;
constexpr u32 kAileronHold = 65612, kRudderHold = 65696, kElevatorHold = 65694;

constexpr u16 kGreenLow = 1750, kBlueLow = 1750, kYellowLow = 1900, kRedLow = 950;

// The parking brake toggles on the host; the module remembers whether it set it.
void release_auto_brake() {
    host::send_event(kParkBrake);
    ac.brake_park_auto = 0;
}

// Airbrakes without green pressure: pulled in when nearly in, run out fully
// at low speed, blown back to mid travel at high speed.
void airbrakes_without_green() {
    const f64 pos = host::read(airbrakes);
    if (pos < 3000.0) {
        if (pos >= 1.0)
            host::send_event(kAirbrakesIn);
        return;
    }
    const f64 kt = host::read(airspeed);
    if (kt <= 60.0 && pos > 6000.0 && pos < 16382.0)
        host::send_event(kAirbrakesOut);
    if (kt > 60.0 && pos > 4000.0)
        host::send_event(kAirbrakesBlown, 7000);
}

void green_lost() {
    airbrakes_without_green();

    host::read(rudder);
    host::read(airspeed);
    host::read(on_ground);
    const f64 kt = airspeed.value.n;
    if (is_on(on_ground.value.n) && kt >= 10.0 && kt <= 60.0 && rudder.value.n != 0.0 &&
        ac.hyd_red_press < kRedLow)
        host::send_event(kCentreSteering);

    if (ac.hyd_red_press < kRedLow) {
        if (ac.brake_park_auto == 0 && host::read(park_brake) == 0.0) {
            host::send_event(kParkBrake);
            ac.brake_park_auto = 1;
        }
    } else if (ac.brake_park_auto >= 1) {
        release_auto_brake();
    }

    host::read(aileron);
    host::read(elevator);
    if (ac.hyd_blue_press <= kBlueLow && ac.hyd_yellow2_press < kYellowLow &&
        ac.hyd_yellow1_press < kYellowLow) {
        ac.flt_surfaces_frozen = 1;
        if (is_on(on_ground.value.n)) {
            if (aileron.value.n != 0.0)
                host::send_event(kAileronHold);
            if (elevator.value.n != 0.0)
                host::send_event(kElevatorHold);
        } else {
            host::send_event(kAileronHold);
            host::send_event(kRudderHold);
            host::send_event(kElevatorHold);
        }
    } else {
        ac.flt_surfaces_frozen = 0;
    }
}

void hydraulic_loss() {
    host::read(park_brake);
    host::read(left_brake);
    if (ac.hyd_green_press <= kGreenLow) {
        green_lost();
    } else {
        if (ac.brake_park_auto >= 1)
            release_auto_brake();
        ac.flt_surfaces_frozen = 0;
    }
    // Green pressure back and the pedal released: the parking brake goes off.
    if (park_brake.value.n > 0.0 && ac.hyd_green_press > kGreenLow && left_brake.value.n < 5000.0)
        release_auto_brake();
    // The pilot presses the brake over an automatic parking brake.
    if (ac.brake_park_auto == 1 && left_brake.value.n > 5000.0) {
        host::send_event(kParkBrake);
        ac.brake_park_auto = 2;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t extra) {
    if (service == kServiceInstall) {
        sound::start_and_load(extra);
    } else if (service == kServiceKill) {
        sound::shutdown();
    } else if (service == kServiceUpdate) {
        show_click_area(g, 0);
        hydraulic_loss();
    }
}
}  // namespace

KESTRANE_GAUGE(toggle_pan_tadg,
               gauge("kestrane toggle_pan_tadg", 70, update)
                   .tip("display/hide tadg & batt switch panel")
                   .elements(image(80, 0x40004003))  // e0 click area
                   .mouse(toggle_box(0, 0, 70, 70,
                                     window_events<kEventWindowToggle, window::kTadg, window::kBattery>)))
