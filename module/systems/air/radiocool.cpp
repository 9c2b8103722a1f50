// kestrane radiocool_jm47: equipment cooling. Four-position selector and the
// two cooling valves A and B, each taking a second to travel.
#include "systems/air/air_rules.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1), on_ground = token(60), n1_eng1 = token(624), n1_eng2 = token(643);
u8 selector = 0;  // 0..3, 2 automatic
air::TimedValve valve_a{}, valve_b{};

constexpr f64 kValveTicks = 18.0;

u32 KCALL selector_down(PixPoint*, u32) {
    if (selector > 0)
        --selector;
    return 0;
}
u32 KCALL selector_up(PixPoint*, u32) {
    if (selector < 3)
        ++selector;
    return 0;
}

void valves(u8 a, u8 b, f64 now) {
    air::drive(valve_a, a, now, kValveTicks);
    air::drive(valve_b, b, now, kValveTicks);
}

void valve_images(GaugeHeader* g, int first, const air::TimedValve& v, bool ess) {
    show(g, first, ess && v.state == 0);
    show(g, first + 1, ess && v.state == 1);
}

void update_cycle(GaugeHeader* g) {
    const f64 now = host::read(tick);
    const bool ess = ac.elec_ess_bus == 1;
    const bool ground = is_on(host::read(on_ground));
    const f64 n1_1 = host::read(n1_eng1);
    const f64 n1_2 = host::read(n1_eng2);
    switch (selector) {
        case 0:
            if (ess)
                valves(1, 0, now);
            break;
        case 1:
            if (ess)
                valves(0, 0, now);
            break;
        case 2:
            if (!ground || (n1_1 >= 85.0 && n1_2 >= 85.0)) {
                // in flight or at take-off power: valve A with bleed air
                if (ess)
                    valves(ac.air_bleed_valve_lh + ac.air_bleed_valve_rh < 2 ? 0 : 1, 0, now);
            } else if (ess) {
                valves(0, 1, now);
            }
            break;
        default:
            valves(0, 0, now);
            break;
    }
    valve_images(g, 2, valve_a, ess);
    valve_images(g, 4, valve_b, ess);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service == kServiceUpdate)
        update_cycle(g);
}

f64 KCALL selector_needle(Element*) {
    return clamp_back(selector, 0.0, 3.0);
}

// About the selector's pivot (76, 188).
NeedlePoint selector_scale[] = {{41, 173, 0, 0}, {61, 153, 1, 0}, {91, 153, 2, 0}, {111, 173, 3, 0}};
}  // namespace

// clang-format off
KESTRANE_GAUGE(radiocool,
    gauge("kestrane radiocool_jm47", 250, update)
        .elements(image(13584, 0x4001),                                                   // e0
                  icon(4608, 70, 39, 0x40000003),                                         // e1 light, never lit
                  icon(12912, 25, 91, 0x40000003),                                        // e2 valve A shut
                  icon(12896, 25, 91, 0x40000003),                                        // e3 valve A open
                  icon(12912, 104, 91, 0x40000003),                                       // e4 valve B shut
                  icon(12896, 104, 91, 0x40000003),                                       // e5 valve B open
                  needle(13600, 76, 188, 4, 4, 0x4003, selector_needle, selector_scale))  // e6 selector
        .mouse(click(26, 162, 50, 53, kCursorDown, selector_down),
               click(76, 162, 50, 53, kCursorUp, selector_up)))
// clang-format on
