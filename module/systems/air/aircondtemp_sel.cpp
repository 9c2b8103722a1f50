// kestrane aircondtemp_sel_jm47: cockpit and cabin temperature selector
// knobs, 0..80 (16 to 32 degrees C). No callback: the knobs only store their
// values for the air-conditioning controller.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

constexpr u8 kSelectorMax = 80;

template <u8& Sel>
u32 KCALL colder(PixPoint*, u32) {
    if (Sel > 0)
        --Sel;
    return 0;
}
template <u8& Sel>
u32 KCALL warmer(PixPoint*, u32) {
    if (Sel < kSelectorMax)
        ++Sel;
    return 0;
}
template <u8& Sel>
f64 KCALL knob(Element*) {
    return clamp_back(Sel, 0.0, kSelectorMax);
}

// Each knob's scale: a half circle about its pivot.
NeedlePoint ckpt_scale[] = {{33, 47, 0, 0}, {63, 12, 40, 0}, {93, 47, 80, 0}};
NeedlePoint cabin_scale[] = {{127, 47, 0, 0}, {157, 12, 40, 0}, {187, 47, 80, 0}};
}  // namespace

// clang-format off
KESTRANE_GAUGE(aircondtemp_sel,
    gauge("kestrane aircondtemp_sel_jm47", 215, nullptr)
        .elements(image(13328, 0x4001),                                                          // e0
                  needle(13344, 63, 47, 4, 4, 0x4003, knob<ac.air_cond_sel_ckpt>, ckpt_scale),    // e1 cockpit
                  needle(13344, 157, 47, 4, 4, 0x4003, knob<ac.air_cond_sel_cabin>, cabin_scale))  // e2 cabin
        .mouse(repeat(18, 7, 45, 80, kCursorDown, colder<ac.air_cond_sel_ckpt>),
               repeat(63, 7, 45, 80, kCursorUp, warmer<ac.air_cond_sel_ckpt>),
               repeat(113, 7, 45, 80, kCursorDown, colder<ac.air_cond_sel_cabin>),
               repeat(158, 7, 45, 80, kCursorUp, warmer<ac.air_cond_sel_cabin>)))
// clang-format on
