// kestrane omi_jm47: outer, middle and inner marker lights. Its callback also
// sounds the cockpit alerts raised elsewhere: the master-warning gong, the
// fire bell and the air-conditioning noise.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1), marker = token(354);

// Two gong requests no warning raises (codes 14 and 15).
u8 spare_request_1 = 0, spare_request_2 = 0;

struct GongRow {
    u8* request;
    u8* request_b;  // a second request answered with the same code
    u8 code;
};

// Served in this order, one gong per cycle at most.
const GongRow kGongRows[] = {
    {&ac.warn_alert_servo, nullptr, 2},
    {&ac.warn_alert_elec, nullptr, 3},
    {&ac.warn_alert_lhfueltemp, &ac.warn_alert_rhfueltemp, 4},
    {&ac.warn_alert_lhoilpress, nullptr, 5},
    {&ac.warn_alert_rhoilpress, nullptr, 6},
    {&ac.warn_alert_fuellevel, nullptr, 7},
    {&ac.warn_alert_ice, nullptr, 8},
    {&ac.warn_alert_apdisc, nullptr, 9},
    {&ac.warn_alert_hydlvl, nullptr, 10},
    {&ac.warn_alert_lhfuelpress, nullptr, 11},
    {&ac.warn_alert_rhfuelpress, nullptr, 12},
    {&ac.warn_alert_cabinalt, nullptr, 13},
    {&spare_request_1, nullptr, 14},
    {&spare_request_2, nullptr, 15},
};

void marker_lights(GaugeHeader* g) {
    const f64 m = ac.elec_dc_bus_1 == 1 ? host::read(marker) : 0.0;
    show(g, 1, m == 1.0);
    show(g, 2, m == 2.0);
    show(g, 3, m == 3.0);
}

void gong() {
    if (ac.warn_alert_code != 0)
        return;
    for (const GongRow& row : kGongRows) {
        const bool a = *row.request == 1;
        const bool b = row.request_b != nullptr && *row.request_b == 1;
        if (!a && !b)
            continue;
        sound::play(sound::kGongMono);
        ac.warn_alert_code = row.code;
        if (a)
            *row.request = 2;
        if (b)
            *row.request_b = 2;
        return;
    }
}

void fire_bell(bool ess) {
    if (ess && ac.warn_fire_bell == 1) {
        sound::play(sound::kSonnerie, sound::kLooping);
        return;
    }
    if (!ess && ac.warn_fire_bell == 1)
        ac.warn_fire_bell = 0;
    sound::stop(sound::kSonnerie);
}

// Entry noise, then the loop after 108 ticks; the exit noise when the air
// stops. An entry cut short resumes where it was.
void air_conditioning() {
    constexpr u8 kIdle = 0, kArmed = 1, kEntry = 2, kLoop = 3;
    u8& phase = ac.air_cond_snd_state;
    const bool flow = (ac.air_bleed_valve_lh == 255 && ac.air_bleed_on_lh == 1) ||
                      (ac.air_bleed_valve_rh == 255 && ac.air_bleed_on_rh == 1);
    const f64 now = host::read(tick);
    if (flow) {
        if (phase == kIdle) {
            ac.air_cond_snd_tick = trunc_to<i32>(now + 108.0);
            phase = kArmed;
        }
        if (phase == kArmed && now < ac.air_cond_snd_tick) {
            sound::play(sound::kAirCondEnt);
            phase = kEntry;
        } else if (phase == kEntry && now >= ac.air_cond_snd_tick) {
            sound::play(sound::kAirCond, sound::kLooping);
            ac.air_cond_snd_tick = 0;
            phase = kLoop;
        }
    } else if (phase == kLoop) {
        sound::stop(sound::kAirCond);
        sound::play(sound::kAirCondSort);
        phase = kIdle;
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    marker_lights(g);
    const bool ess = ac.elec_ess_bus == 1;
    if (ess)
        gong();
    fire_bell(ess);
    air_conditioning();
}

constexpr u32 kHiddenLight = 0x40000003;
}  // namespace

KESTRANE_GAUGE(omi, gauge("kestrane omi_jm47", 86, update)
                        .elements(image(42848, 0x4001),              // e0 background
                                  icon(44672, 0, 0, kHiddenLight),   // e1 outer marker
                                  icon(44688, 0, 0, kHiddenLight),   // e2 middle marker
                                  icon(44704, 0, 0, kHiddenLight)))  // e3 inner marker
