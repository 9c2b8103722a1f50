// kestrane elec_bus_bat_jm47: battery bus diagram with the essential bus feed
// switch. Its callback runs the DC side of the network: battery coupling,
// charge and current, the DC generators, the DC buses, the essential bus and
// the DC voltmeter, and turns the host's own electrical switches on once.
#include "elec_a_panel.h"

namespace {
using namespace kestrane;
using elec_a::alt_lh_on_line;
using elec_a::alt_rh_on_line;
using elec_a::art;

ModuleVar host_elec_failure = token(279), sim_seconds = token(604);
ModuleVar n2_eng1 = token(625), n2_eng2 = token(644), on_ground = token(60);
ModuleVar host_battery = token(364), host_master = token(363), host_avionics = token(740);
ModuleVar host_gen1 = token(565), host_gen2 = token(575);

// Battery bookkeeping: a discharge counts down from the full capacity from
// the moment it began; a charge counts up from the charge it began with.
u8 discharging, charging;
u32 period_start, period_elapsed;
i32 charge_at_start;
u8 host_synced;

i8 battery_current() {
    const u8 sel = ac.elec_batt_sel;
    const bool any_gen = ac.elec_gen1_online == 1 || ac.elec_gen2_online == 1;  // last cycle
    const bool starter = ac.eng1_starter_engaged != 0 || ac.eng2_starter_engaged != 0;
    const i8 drain = ac.elec_tadg_on == 1 ? -50 : -10;
    if (ac.elec_batt_on_bus != 1)
        return 0;
    if (sel == 2 && starter && ac.elec_dc_gndpwr_on != 1) {
        charging = 0;
        return -120;
    }
    if (!any_gen || sel != 1) {
        charging = 0;
        return drain;
    }
    discharging = 0;
    const std::int64_t room = static_cast<std::int64_t>(ac.elec_batt_capacity) - ac.elec_batt_charge;
    return room < 50 ? trunc_to<i8>(static_cast<f64>(room)) : 50;
}

u32 elapsed_since(u32 now) {
    return now >= period_start ? now - period_start : 0;
}

void count_charge(u32 now) {
    const std::int64_t capacity = ac.elec_batt_capacity;
    const i8 amps = ac.elec_batt_amps;
    if (amps < -1 && discharging == 0) {
        period_start = now;
        discharging = 1;
    }
    if (discharging == 1 && (amps == -120 || amps == -50 || amps == -10)) {
        period_elapsed = elapsed_since(now);
        const std::int64_t e = period_elapsed;
        std::int64_t left = amps == -120 ? capacity - 3 * e : amps == -50 ? capacity - e : capacity - e / 3;
        if (left < 0)
            left = 0;
        ac.elec_batt_charge = static_cast<i16>(left);
    }
    if (amps > 0 && charging == 0) {
        period_start = now;
        charge_at_start = ac.elec_batt_charge;
        charging = 1;
    }
    if (charging == 1 && amps > 0) {
        period_elapsed = elapsed_since(now);
        if (ac.elec_batt_charge > capacity)
            ac.elec_batt_charge = static_cast<i16>(capacity);
        else
            ac.elec_batt_charge = trunc_to<i16>(charge_at_start + static_cast<f64>(period_elapsed));
    }
}

void generator_currents() {
    const bool g1 = ac.elec_gen1_online == 1, g2 = ac.elec_gen2_online == 1;
    const bool lines_idle = ac.elec_line1_amps + ac.elec_line2_amps == 0;
    const bool tadg = ac.elec_tadg_on == 1;
    u8 both, single;
    if (tadg) {
        both = lines_idle ? 25 : 12;
        single = lines_idle ? 45 : 24;
    } else {
        both = lines_idle ? 22 : 12;
        single = lines_idle ? 40 : 24;
    }
    if (g1 && g2) {
        ac.elec_gen1_amps = ac.elec_gen2_amps = both;
    } else {
        ac.elec_gen1_amps = g1 ? single : 0;
        ac.elec_gen2_amps = g2 ? single : 0;
    }
}

void dc_buses(bool in_flight) {
    const bool g1 = ac.elec_gen1_online == 1, g2 = ac.elec_gen2_online == 1;
    const bool dc_ground = ac.elec_dc_gndpwr_on == 1;
    const bool lh = alt_lh_on_line(), rh = alt_rh_on_line();
    if (!g1 && !g2 && !dc_ground) {
        ac.elec_gen_bus = 0;
        if (ac.elec_batt_on_bus == 1 && ac.elec_batt_charge > 0) {
            ac.elec_dc_main_bus = 1;
            ac.elec_dc_sec_bus = ac.elec_batt_coupled;
        } else {
            ac.elec_dc_main_bus = ac.elec_dc_sec_bus = 0;
        }
    } else {
        ac.elec_gen_bus = ac.elec_dc_main_bus = ac.elec_dc_sec_bus = 1;
    }

    if (ac.elec_gen_bus == 1) {
        ac.elec_dc_bus_1 = ac.elec_dc_bus_2 = 1;
        if ((g1 && g2) || dc_ground) {
            ac.elec_gen_bus_twin = 1;
            ac.elec_gen_bus_shed = in_flight || dc_ground || ac.elec_ac_gndpwr_on == 1 || (lh && rh) ? 1 : 0;
        } else {
            ac.elec_gen_bus_twin = ac.elec_gen_bus_shed = 0;
        }
    } else {
        ac.elec_gen_bus_twin = ac.elec_gen_bus_shed = 0;
        ac.elec_dc_bus_1 = ac.elec_ac_gndpwr_on == 1 || lh || rh;
        ac.elec_dc_bus_2 = ac.elec_ac_gndpwr_on == 1 || (rh && ac.elec_tr_rh_online == 1) || lh;
    }
    ac.elec_dc_sec_gen_bus = ac.elec_dc_sec_bus == 1 && ac.elec_gen_bus == 1;

    // Essential bus: its DC feed, AC ground power, alternator LH through
    // TR LH (whose own supply is the essential bus), or alternator RH.
    const u8 feed = ac.elec_ess_feed_sw == 1 ? ac.elec_dc_main_bus : ac.elec_dc_sec_bus;
    ac.elec_ess_bus = feed == 1 || ac.elec_ac_gndpwr_on == 1 || (lh && ac.elec_tr_lh_online == 1) || rh;
    if (ac.elec_ess_bus == 1)
        ac.elec_fire_ext_power = 1;
}

u8 dc_voltmeter() {
    if (ac.elec_dc_volt_test > 0)
        return 0;
    const bool battery = ac.elec_batt_charge > 0;
    switch (ac.elec_dc_volt_sel) {
        case 0:
            return ac.elec_gen_bus == 1 ? 28 : 0;
        case 1:
            return ac.elec_gen1_online == 1 ? 28 : 0;
        case 2:
            return ac.elec_gen2_online == 1 ? 28 : 0;
        case 3:
        case 4:
            return ac.elec_batt_coupled == 1 && battery ? 24 : 0;
        case 5:
            return ac.elec_master_sw == 2 && battery ? 24 : 0;
        default:
            return 0;
    }
}

// Until the host reports its battery, master, avionics and both generator
// switches on, ask it each cycle to turn on the ones we need.
void sync_host_switches() {
    if (host_synced == 1)
        return;
    const f64 battery = host::read(host_battery), master = host::read(host_master);
    const f64 avionics = host::read(host_avionics);
    const f64 gen1 = host::read(host_gen1), gen2 = host::read(host_gen2);
    if ((ac.elec_batt_coupled == 1 || ac.elec_batt_on_bus == 1) && battery == 0.0)
        host::send_event(66241);
    if (ac.elec_tadg_on == 1 && avionics == 0.0)
        host::send_event(66293);
    if (ac.elec_master_sw == 2 && master == 0.0)
        host::send_event(66242);
    if ((ac.elec_gen1_online == 1 || ac.elec_alt_lh_online == 1) && gen1 == 0.0)
        host::send_event(66363);
    if ((ac.elec_gen2_online == 1 || ac.elec_alt_rh_online == 1) && gen2 == 0.0)
        host::send_event(66364);
    if (is_on(battery) && is_on(master) && is_on(avionics) && is_on(gen1) && is_on(gen2))
        host_synced = 1;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const bool host_failed = trunc_to<i32>(host::read(host_elec_failure)) == 1;
    const u32 now = trunc_to<u32>(host::read(sim_seconds));
    const f64 n2_1 = host::read(n2_eng1), n2_2 = host::read(n2_eng2);
    const bool in_flight = host::read(on_ground) == 0.0;

    // coupling and capacity
    ac.elec_batt_coupled = ac.elec_master_sw == 2 && ac.elec_batt_sel == 1;
    ac.elec_batt_capacity = ac.elec_batt_coupled == 1 || ac.elec_batt_sel == 2 ? 1800 : 900;
    ac.elec_batt_on_bus = ac.elec_master_sw == 2;

    ac.elec_batt_amps = battery_current();
    count_charge(now);

    ac.elec_batt_norm_amps = ac.elec_batt_amps;
    ac.elec_batt_stby_amps = ac.elec_batt_coupled == 1 || ac.elec_batt_sel == 2 ? ac.elec_batt_amps : 0;
    const bool dc_ground = ac.elec_dc_gndpwr_on == 1;
    ac.elec_gen1_online = n2_1 > 20.0 && !host_failed && ac.elec_gen1_failed == 0 && !dc_ground &&
                          ac.elec_gen1_sw == 1 && ac.fuel_hp_cock_lh == 1;
    ac.elec_gen2_online = n2_2 > 20.0 && !host_failed && ac.elec_gen2_failed == 0 && !dc_ground &&
                          ac.elec_gen2_sw == 1 && ac.fuel_hp_cock_rh == 1;

    generator_currents();
    dc_buses(in_flight);
    ac.elec_dc_volts = dc_voltmeter();
    sync_host_switches();

    show(g, 1, ac.elec_ess_feed_sw == 1);
    show(g, 2, ac.elec_ess_feed_sw == 2);
    show(g, 3, ac.elec_gen_bus == 1 && ac.elec_dc_sec_bus == 1);
    show(g, 4, ac.elec_gen_bus == 1);
    show(g, 5, ac.elec_master_sw == 2 && ac.elec_dc_main_bus == 1);
    const bool coupled_lit = ac.elec_batt_coupled == 1 && ac.elec_dc_sec_bus == 1;
    show(g, 6, coupled_lit);
    show(g, 7, coupled_lit);
    show(g, 8, ac.elec_dc_sec_bus == 1);
    show(g, 9, ac.elec_dc_sec_bus == 1);
}

u32 KCALL feed_main(PixPoint*, u32) {
    set_switch(ac.elec_ess_feed_sw, 1);
    return 0;
}
u32 KCALL feed_sec(PixPoint*, u32) {
    set_switch(ac.elec_ess_feed_sw, 2);
    return 0;
}
}  // namespace

KESTRANE_GAUGE(elec_bus_bat,
               gauge("kestrane elec_bus_bat_jm47", 298, update)
                   .elements(image(26288, 0x4001),                   // e0 background
                             icon(art(18, 1), 8, 70, 0x40000003),    // e1 feed from DC main bus
                             icon(art(18, 2), 8, 70, 0x40000003),    // e2 feed from DC secondary bus
                             icon(art(18, 3), 120, 20, 0x40000003),  // e3 generator to secondary bus
                             icon(art(18, 4), 120, 4, 0x40000003),   // e4 generator bus
                             icon(art(18, 5), 96, 60, 0x40000003),   // e5 normal battery on main bus
                             icon(art(18, 6), 180, 60, 0x40000003),  // e6 coupling, battery side
                             icon(art(18, 7), 220, 60, 0x40000003),  // e7 coupling, standby side
                             icon(art(18, 0), 250, 20, 0x40000003),  // e8 secondary bus
                             icon(art(18, 0), 250, 96, 0x40000003))  // e9 standby battery on secondary bus
                   .mouse(click(0, 63, 41, 50, kCursorHand, feed_main),
                          click(41, 63, 41, 50, kCursorHand, feed_sec)))
