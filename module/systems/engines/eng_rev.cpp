// kestrane eng_rev_jm47: reverser indicator. Per engine a transit light, lit
// as soon as the reverser leaves its stowed position, and a deployed light
// that follows 36 ticks later. Stowing puts the deployed light out at once
// and the transit light 36 ticks later. Lamps on the essential bus.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar tick = token(1);
ModuleVar rev_pos_1 = token(641), rev_pos_2 = token(660);

constexpr f64 kOut = 0.01;         // reverser position counted as out of stowed
constexpr i32 kTransitTicks = 36;  // 2 s

struct Reverser {
    u8 timing;    // 1 from the start of a deployment until the start of the next stowing
    u8 deployed;  // deployed light latched
    i32 end_tick;
};

Reverser eng1_rev{}, eng2_rev{};

// `extinguished`: engine 1's extinguisher has gone off; its lights stay out
// while the reverser is out.
void run_reverser(GaugeHeader* g, Reverser& r, ModuleVar& position, int transit, int deployed_light,
                  bool extinguished) {
    const bool out = host::read(position) >= kOut;
    const bool powered = ac.elec_ess_bus == 1;
    if (powered && out && r.deployed == 0 && !extinguished) {  // deploying
        show(g, transit, true);
        const f64 now = host::read(tick);
        if (r.timing == 0) {
            r.end_tick = trunc_to<i32>(now + kTransitTicks);
            r.timing = 1;
        }
        if (now >= r.end_tick) {
            show(g, deployed_light, true);
            r.deployed = 1;
        } else {
            show(g, deployed_light, false);
        }
    } else if (powered && out && r.deployed == 1 && !extinguished) {  // deployed
        show(g, transit, true);
        show(g, deployed_light, true);
        r.end_tick = 0;
    } else if (powered && !out && r.deployed == 1) {  // stowing
        show(g, deployed_light, false);
        const f64 now = host::read(tick);
        if (r.timing == 1) {
            r.end_tick = trunc_to<i32>(now + kTransitTicks);
            r.timing = 0;
        }
        if (now >= r.end_tick) {
            show(g, transit, false);
            r.deployed = 0;
            r.end_tick = 0;
        } else if (!extinguished) {
            show(g, transit, true);
        }
    } else {
        show(g, transit, false);
        show(g, deployed_light, false);
    }
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    run_reverser(g, eng1_rev, rev_pos_1, 1, 3, ac.warn_eng1_ext_fired == 1);
    run_reverser(g, eng2_rev, rev_pos_2, 2, 4, false);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(eng_rev,
    gauge("kestrane eng_rev_jm47", 150, update).help(0xA44B)
        .elements(image(18768, 0x4001),             // e0 background
                  icon(18736, 0, 0, 0x40000003),    // e1 engine 1 transit
                  icon(18736, 133, 0, 0x40000003),  // e2 engine 2 transit
                  icon(9776, 46, 0, 0x40000003),    // e3 engine 1 deployed
                  icon(9776, 90, 0, 0x40000003)))   // e4 engine 2 deployed
// clang-format on
