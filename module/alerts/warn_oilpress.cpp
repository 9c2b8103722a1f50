// kestrane warn_lhoilpress_jm47 and warn_rhoilpress_jm47: engine oil pressure
// low while the engine's HP cock is open. A click acknowledges.
#include "alerts/warning.h"

namespace {
using namespace kestrane;

struct OilLight {
    ModuleVar& oil_press;
    u8& hp_cock;
    u8& state;
    u8& request;
    u8 code;
};

ModuleVar oil_press_1 = token(562), oil_press_2 = token(572);

constexpr OilLight kLeft{.oil_press = oil_press_1,
                         .hp_cock = ac.fuel_hp_cock_lh,
                         .state = ac.warn_lhoilpress_state,
                         .request = ac.warn_alert_lhoilpress,
                         .code = 5};
constexpr OilLight kRight{.oil_press = oil_press_2,
                          .hp_cock = ac.fuel_hp_cock_rh,
                          .state = ac.warn_rhoilpress_state,
                          .request = ac.warn_alert_rhoilpress,
                          .code = 6};

template <const OilLight& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 press = host::read(S.oil_press);
    const bool dc = ac.elec_dc_main_bus == 1;
    if (S.hp_cock != 1 || press * 1.1 >= 3000.0 || !dc) {
        S.state = warn::kOff;
    } else if (S.state != warn::kAcknowledged) {
        S.state = warn::kLit;
        warn::raise(S.request);
    }
    show(g, 0, S.state == warn::kLit && dc);
    if (warn::rearm(S.request, S.state == warn::kLit))
        warn::release_code(S.code);
}

template <const OilLight& S>
u32 KCALL acknowledge(PixPoint*, u32) {
    warn::acknowledge(S.state);
    warn::release_code(S.code);
    return 0;
}
}  // namespace

KESTRANE_GAUGE(warn_lhoilpress,
               gauge("kestrane warn_lhoilpress_jm47", 80, update<kLeft>)
                   .elements(image(22848, warn::kLightFlags))  // e0 the light
                   .mouse(click(0, 0, warn::kBoxW, warn::kBoxH, kCursorHand, acknowledge<kLeft>)))

KESTRANE_GAUGE(warn_rhoilpress,
               gauge("kestrane warn_rhoilpress_jm47", 80, update<kRight>)
                   .elements(image(22864, warn::kLightFlags))  // e0 the light
                   .mouse(click(0, 0, warn::kBoxW, warn::kBoxH, kCursorHand, acknowledge<kRight>)))
