// kestrane askidred_jm47: red anti-skid light, on the secondary DC bus. On
// the ground with token 322 above 16000, a brake input released below 5000
// lights it until 9 cycles after the release.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar cycle = token(1), on_ground = token(60), pedal_left = token(320), pedal_right = token(321),
          skid = token(322);

u8 light, test, timing;
u32 deadline;

u32 KCALL press(PixPoint*, u32) {
    if (!test && !light)
        test = 1;
    else if (test)
        test = 0;
    else
        light = 0;
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 now = host::read(cycle);
    const bool armed = is_on(host::read(on_ground)) && host::read(skid) > 16000;
    const bool left_off = armed && host::read(pedal_left) < 5000;
    const bool right_off = armed && host::read(pedal_right) < 5000;
    if ((left_off || right_off) && !timing) {
        deadline = trunc_to<u32>(now + 9);
        timing = 1;
    } else if (left_off || right_off) {
        light = now < deadline;
    } else {
        timing = 0;
        light = 0;
    }
    show(g, 1, ac.elec_dc_sec_bus == 1 && (light || test));
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(askidred,
    gauge("kestrane askidred_jm47", 55, update)
        .elements(image(41408, 0x4001),              // e0 background
                  icon(46736, 11, 151, 0x40000003))  // e1 the light
        .mouse(click(11, 151, 31, 19, kCursorHand, press)))
// clang-format on
