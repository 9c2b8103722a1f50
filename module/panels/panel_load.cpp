// The panel-load sequence. At load every window is opened, again each cycle,
// together with the panel-load panel, until the pilot chooses a cold or a
// ready-to-fly start. Then for eight cycles the initial switch positions are
// set (the windows stay open so that their gauges run), one cycle closes the
// electrical panel and the next closes everything else.
#include "panels/panel_load.h"

#include "frame/panel_toggle.h"

namespace kestrane {
namespace {

ModuleVar height = token(614);

constexpr u32 kMainWindows[] = {window::kGear,      window::kAutopilot, window::kGps,    window::kClock,
                                window::kPedestal,  window::kRadios2,   window::kUpper2, window::kTadg,
                                window::kHydraulic, window::kServos,    window::kFuel,   window::kElectrical,
                                window::kUpper3};

constexpr u8 kWaiting = 0, kFirst = 1, kLastSetting = 9, kCloseAll = 10, kDone = 11;
constexpr u8 kReadyToFly = 2;
constexpr u32 kColdStart = 66037;

void open_main_windows() {
    for (u32 id : kMainWindows)
        host::send_event(kEventWindowOpen, id);
}

// Positions of a cold aircraft on the ground: fuel shut and pumps off,
// converters and the electrical master off, generator guards closed over
// their switches, hydraulic pumps on under their guards, bleeds, pitot heat
// and radio altimeter off.
void set_cold_positions() {
    ac.fuel_hp_cock_lh = ac.fuel_hp_cock_rh = 0;
    ac.fuel_pump_a_sw_lh = ac.fuel_pump_b_sw_lh = ac.fuel_pump_c_sw_lh = ac.fuel_pump_d_sw_lh = 0;
    ac.fuel_pump_a_sw_rh = ac.fuel_pump_b_sw_rh = ac.fuel_pump_c_sw_rh = ac.fuel_pump_d_sw_rh = 0;
    ac.fuel_valve_sw1_lh = ac.fuel_valve_lh = ac.fuel_valve_sw1_rh = ac.fuel_valve_rh = 1;
    ac.elec_ess_feed_sw = 1;
    ac.elec_ac_gndpwr_sw = 0;
    ac.elec_gen1_guard = ac.elec_gen2_guard = 0;
    ac.elec_gen1_sw = ac.elec_gen2_sw = 1;
    ac.elec_conv3_sw = ac.elec_conv1_sw = ac.elec_conv2_sw = 0;
    ac.elec_master_sw = 0;
    ac.elec_tadg_sw = 0;
    ac.hyd_blue_pump1_sw = ac.hyd_blue_pump2_sw = 2;
    ac.hyd_green_pump1_sw = ac.hyd_green_pump2_sw = 2;
    ac.flt_servo_sel = 0;
    ac.air_bleed_sw_lh = ac.air_bleed_sw_rh = 0;
    ac.ice_pitot_sw_1 = ac.ice_pitot_sw_2 = ac.ice_pitot_sw_3 = 0;
    ac.adc_ralt_sw = 0;
}

// Ready to fly, or loaded in the air: windows kept open (the failures panel
// too, whose ready preset starts the engines), bleeds on in the air, and
// navigation lights and beacon on.
void set_ready_positions(bool airborne) {
    if (ac.panel_load_step < kLastSetting) {
        open_main_windows();
        host::send_event(kEventWindowOpen, window::kFailures);
    } else {
        host::send_event(kEventWindowClose, window::kElectrical);
    }
    if (airborne) {
        ac.air_bleed_valve_lh = ac.air_bleed_valve_rh = 255;
        ac.air_bleed_on_lh = ac.air_bleed_on_rh = 1;
        ac.air_cabin_alt = 0.0f;
    }
    ac.light_nav_sw = 1;
    ac.light_beacon_sw = 1;
    ac.fail_preset_ready = 1;
}

}  // namespace

void panel_load_cycle() {
    u8& step = ac.panel_load_step;
    if (step == kWaiting) {
        open_main_windows();
        if (ac.panel_load_choice == 0)
            host::send_event(kEventWindowOpen, window::kPanelLoad);
        else
            step = kFirst;
    }

    if (step >= kFirst && step <= kLastSetting)
        ++step;
    else if (step > kLastSetting && step != kDone)
        step = kCloseAll;

    if (step >= 2 && step <= kLastSetting) {
        const bool airborne = host::read(height) > 100.0;
        if (airborne || ac.panel_load_choice == kReadyToFly) {
            set_ready_positions(airborne);
        } else {
            host::send_event(kColdStart, 125);
            set_cold_positions();
        }
    }

    if (step == kCloseAll) {
        for (u32 id : kMainWindows) {
            if (id != window::kElectrical)
                host::send_event(kEventWindowClose, id);
        }
        host::send_event(kEventWindowClose, window::kFailures);
        host::send_event(kEventWindowClose, window::kPanelLoad);
        step = kDone;
    }
}

}  // namespace kestrane
