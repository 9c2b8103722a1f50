// Presets of the failures panel: each puts the switches of the whole aircraft
// into a known configuration. The ready and reset presets also start the
// engines on ground power, engine 2 first.
#include "alerts/failures.h"
#include "frame/gauge.h"

namespace kestrane::failures {
namespace {

ModuleVar main_exit = token(868);
ModuleVar n1_lh = token(624), n1_rh = token(643);
ModuleVar n2_lh = token(625), n2_rh = token(644);

constexpr u32 kSelectExit = 66389, kToggleExit = 65538;
constexpr u32 kStartEngine1 = 66300, kStartEngine2 = 66301;

// Electrical network on ground power with both generators and converters.
void set_electrical() {
    ac.elec_ess_feed_sw = 1;
    ac.elec_gndpwr_plug = 1;
    ac.elec_master_sw = 1;
    ac.elec_ac_gndpwr_sw = 2;
    ac.elec_gen1_guard = ac.elec_gen2_guard = 0;
    ac.elec_gen1_sw = ac.elec_gen2_sw = 1;
    ac.elec_conv3_sw = 1;
    ac.elec_conv1_sw = 1;
    ac.elec_conv2_sw = 2;
    ac.elec_tadg_sw = 1;
}

// Fuel fed from both sides (pumps A and B automatic), hydraulic pumps on,
// servo selector normal.
void set_fuel_and_hydraulics() {
    ac.fuel_valve_sw1_lh = ac.fuel_valve_lh = ac.fuel_valve_sw1_rh = ac.fuel_valve_rh = 1;
    ac.fuel_pump_a_sw_lh = ac.fuel_pump_b_sw_lh = 2;
    ac.fuel_pump_c_sw_lh = ac.fuel_pump_d_sw_lh = 1;
    ac.fuel_pump_a_sw_rh = ac.fuel_pump_b_sw_rh = 2;
    ac.fuel_pump_c_sw_rh = ac.fuel_pump_d_sw_rh = 1;
    ac.hyd_green_pump1_sw = ac.hyd_green_pump2_sw = 2;
    ac.hyd_blue_pump1_sw = ac.hyd_blue_pump2_sw = 2;
    ac.flt_servo_sel = 0;
}

void set_cockpit_switches() {
    set_electrical();
    set_fuel_and_hydraulics();
}

// Cranks engine 2, then engine 1 once engine 2's N1 is above 15, while ground
// power feeds the DC network; each HP cock opens as its N2 passes 20.
// Returns whether both engines run (both N1 at 20 or more).
bool start_engines() {
    const f64 n1_1 = host::read(n1_lh);
    const f64 n1_2 = host::read(n1_rh);
    const f64 n2_1 = host::read(n2_lh);
    const f64 n2_2 = host::read(n2_rh);
    if (n2_2 <= 25.0) {
        if (ac.elec_dc_gndpwr_on == 1)
            host::send_event(kStartEngine2, 0);
        if (n2_2 >= 20.0)
            ac.fuel_hp_cock_rh = 1;
    }
    if (n2_1 <= 25.0 && n1_2 > 15.0) {
        if (ac.elec_dc_gndpwr_on == 1)
            host::send_event(kStartEngine1, 0);
        if (n2_1 >= 20.0)
            ac.fuel_hp_cock_lh = 1;
    }
    return n1_1 >= 20.0 && n1_2 >= 20.0;
}

void clear_timed_failures() {
    ac.fail_eng1_entry = ac.fail_eng2_entry = ac.fail_fire_entry = 0;
    ac.fail_gen1_entry = ac.fail_gen2_entry = ac.fail_hyd_entry = 0;
}

}  // namespace

void ready_preset() {
    if (host::read(main_exit) == 1.0) {
        host::send_event(kSelectExit, 0);
        host::send_event(kToggleExit, 0);
    }
    if (ac.door_fwd_value > 0.0)
        ac.door_fwd_request = 0;
    ac.stairs_request = 0;

    clear_timed_failures();
    ac.eng1_fire = 0;
    ac.fail_preset_cold = ac.fail_preset_reset = 0;

    set_cockpit_switches();
    ac.light_nav_sw = 1;
    ac.light_beacon_sw = 1;
    ac.ice_pitot_sw_1 = ac.ice_pitot_sw_2 = ac.ice_pitot_sw_3 = 1;
    ac.adc_ralt_sw = 1;

    if (start_engines()) {
        ac.elec_master_sw = 2;
        ac.air_bleed_sw_lh = ac.air_bleed_sw_rh = 1;
        ac.ap_master_sw = 1;
        ac.fail_preset_ready = 0;
    }
}

void cold_preset() {
    ac.fuel_hp_cock_lh = ac.fuel_hp_cock_rh = 0;
    ac.fuel_pump_a_sw_lh = ac.fuel_pump_b_sw_lh = ac.fuel_pump_c_sw_lh = ac.fuel_pump_d_sw_lh = 0;
    ac.fuel_pump_a_sw_rh = ac.fuel_pump_b_sw_rh = ac.fuel_pump_c_sw_rh = ac.fuel_pump_d_sw_rh = 0;
    ac.elec_ess_feed_sw = 1;
    ac.elec_master_sw = 0;
    ac.elec_ac_gndpwr_sw = 0;
    ac.elec_gen1_guard = ac.elec_gen2_guard = 0;
    ac.elec_gen1_sw = ac.elec_gen2_sw = 1;
    ac.elec_conv1_sw = ac.elec_conv2_sw = ac.elec_conv3_sw = 0;
    ac.elec_tadg_sw = 0;
    ac.fuel_valve_sw1_lh = ac.fuel_valve_lh = ac.fuel_valve_sw1_rh = ac.fuel_valve_rh = 1;
    ac.hyd_green_pump1_sw = ac.hyd_green_pump2_sw = 2;
    ac.hyd_blue_pump1_sw = ac.hyd_blue_pump2_sw = 2;
    ac.flt_servo_sel = 0;
    ac.air_bleed_sw_lh = ac.air_bleed_sw_rh = 0;
    ac.ap_master_sw = 0;
    ac.ice_pitot_sw_1 = ac.ice_pitot_sw_2 = ac.ice_pitot_sw_3 = 0;
    ac.fail_preset_cold = 0;
}

void reset_preset() {
    clear_timed_failures();
    ac.fail_preset_ready = ac.fail_preset_cold = 0;
    set_cockpit_switches();
    if (start_engines()) {
        ac.elec_master_sw = 2;
        ac.air_bleed_sw_lh = ac.air_bleed_sw_rh = 1;
    }
}

void elec_preset() {
    ac.fail_gen1_entry = ac.fail_gen2_entry = 0;
    ac.fail_preset_cold = 0;
    ac.elec_ess_feed_sw = 1;
    ac.elec_gndpwr_plug = 1;
    ac.elec_master_sw = 1;
    ac.elec_gen1_guard = ac.elec_gen2_guard = 0;
    ac.elec_gen1_sw = ac.elec_gen2_sw = 1;
    ac.elec_conv3_sw = 1;
    ac.elec_conv1_sw = 1;
    ac.elec_tadg_sw = 1;
}

void servo_preset() {
    if (ac.fail_hyd_entry != 0)
        ac.flt_servo_sel = 2;
}

}  // namespace kestrane::failures
