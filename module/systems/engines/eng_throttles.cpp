// kestrane eng_throttles_jm47: the two throttle levers. Clickable stripes
// set the host's throttles; the lever images follow the host, forward and in
// reverse, 164 pixels from full throttle to idle.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar throttle_1 = token(128), throttle_2 = token(163);  // 16384 full, 0 idle, < 0 reverse

constexpr i32 kIdleOffset = 164;

// pixels from the top of the lever travel: 0 full forward, 164 idle
i32 eng1_lever_offset = kIdleOffset;
i32 eng2_lever_offset = kIdleOffset;

i32 lever_offset(f64 sign_source, f64 v) {
    return sign_source >= 0 ? trunc_to<i32>(kIdleOffset - v / 100) : trunc_to<i32>(kIdleOffset + v / 100);
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 t1 = host::read(throttle_1);
    const f64 t2 = host::read(throttle_2);

    show(g, 3, t1 < 0);
    show(g, 1, !(t1 < 0));
    // During an engine 1 fire throttle 1 is being pulled back towards
    // throttle 2; once its extinguisher has gone off the lever shows idle.
    if (ac.warn_eng1_fire == 0 && ac.warn_eng1_ext_fired == 1)
        eng1_lever_offset = kIdleOffset;
    else
        eng1_lever_offset = lever_offset(t1, ac.warn_eng1_fire == 1 ? t2 : t1);

    show(g, 4, t2 < 0);
    show(g, 2, !(t2 < 0));
    eng2_lever_offset = lever_offset(t2, t2);
}

f64 KCALL across(Element*) {
    return 1.0;
}
f64 KCALL lever_1(Element*) {
    return clamp_back(eng1_lever_offset, 0, kIdleOffset);
}
f64 KCALL lever_2(Element*) {
    return clamp_back(eng2_lever_offset, 0, kIdleOffset);
}

template <u32 Event, u32 Value>
u32 KCALL stripe(PixPoint*, u32) {
    host::send_event(Event, Value);
    return 0;
}

// Throttle 1: full, 0.9 .. 0.1 of 16384, idle; throttle 2 the same.
constexpr u32 kFull1 = 0x101AB, kSet1 = 0x1011C, kIdle1 = 0x101AF;
constexpr u32 kFull2 = 0x101B0, kSet2 = 0x1011D, kIdle2 = 0x101B4;
}  // namespace

// clang-format off
KESTRANE_GAUGE(eng_throttles,
    gauge("kestrane eng_throttles_jm47", 110, update)
        .elements(image(5744, 0x4001),                                               // e0 background
                  moving(5760, 14, 8, 0x40004003, across, lever_1, 0, 164, 0, 164),  // e1 lever 1
                  moving(5888, 71, 8, 0x40004003, across, lever_2, 0, 164, 0, 164),  // e2 lever 2
                  moving(5904, 10, 0, 0x40004003, across, lever_1, 0, 164, 0, 164),  // e3 lever 1 reverse
                  moving(5920, 67, 0, 0x40004003, across, lever_2, 0, 164, 0, 164),  // e4 lever 2 reverse
                  moving(5936, 0, 28, 0x4003, across, lever_1, 0, 164, 0, 164),      // e5 lever 1 knob
                  moving(5952, 64, 28, 0x4003, across, lever_2, 0, 164, 0, 164))     // e6 lever 2 knob
        .mouse(click(0, 59, 51, 19, kCursorUp, stripe<kFull1, 0>),
               click(0, 78, 51, 19, kCursorHand, stripe<kSet1, 14746>),
               click(0, 97, 51, 19, kCursorHand, stripe<kSet1, 13107>),
               click(0, 117, 51, 19, kCursorHand, stripe<kSet1, 11469>),
               click(0, 135, 51, 19, kCursorHand, stripe<kSet1, 9830>),
               click(0, 154, 51, 19, kCursorHand, stripe<kSet1, 8192>),
               click(0, 173, 51, 19, kCursorHand, stripe<kSet1, 6554>),
               click(0, 192, 51, 19, kCursorHand, stripe<kSet1, 4915>),
               click(0, 211, 51, 19, kCursorHand, stripe<kSet1, 3277>),
               click(0, 230, 51, 19, kCursorHand, stripe<kSet1, 1638>),
               click(0, 249, 51, 19, kCursorDown, stripe<kIdle1, 0>),
               click(59, 59, 51, 19, kCursorUp, stripe<kFull2, 0>),
               click(59, 78, 51, 19, kCursorHand, stripe<kSet2, 14746>),
               click(59, 97, 51, 19, kCursorHand, stripe<kSet2, 13107>),
               click(59, 117, 51, 19, kCursorHand, stripe<kSet2, 11469>),
               click(59, 135, 51, 19, kCursorHand, stripe<kSet2, 9830>),
               click(59, 154, 51, 19, kCursorHand, stripe<kSet2, 8192>),
               click(59, 173, 51, 19, kCursorHand, stripe<kSet2, 6554>),
               click(59, 192, 51, 19, kCursorHand, stripe<kSet2, 4915>),
               click(59, 211, 51, 19, kCursorHand, stripe<kSet2, 3277>),
               click(59, 230, 51, 19, kCursorHand, stripe<kSet2, 1638>),
               click(59, 249, 51, 19, kCursorDown, stripe<kIdle2, 0>)))
// clang-format on
