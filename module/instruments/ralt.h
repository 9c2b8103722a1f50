// Radio altimeter: the controls, scales and images that the overview panel's
// small radio altimeter shares with the full instrument. The full
// instrument's cycle does all the computing; the buttons only leave requests.
#pragma once

#include "frame/gauge.h"

namespace kestrane::ralt {

// Test requests left by the buttons, taken by the instrument's cycle.
struct Requests {
    u8 dh_test;
    u8 test_1;
    u8 test_2;
};
extern Requests requests;

u32 KCALL switch_off(PixPoint*, u32);
u32 KCALL switch_on(PixPoint*, u32);
u32 KCALL test_1(PixPoint*, u32);
u32 KCALL test_2(PixPoint*, u32);
u32 KCALL dh_test(PixPoint*, u32);
u32 KCALL dh_down(PixPoint*, u32);
u32 KCALL dh_up(PixPoint*, u32);

// Feet on the dial: linear to 500, compressed above.
inline NeedlePoint dh_scale[] = {{70, 149, 0, 0},    {41, 116, 100, 0},   {37, 73, 200, 0},
                                 {58, 36, 300, 0},   {98, 18, 400, 0},    {140, 27, 500, 0},
                                 {174, 76, 1000, 0}, {159, 133, 2000, 0}, {140, 149, 2500, 0}};
inline NeedlePoint height_scale[] = {
    {70, 149, 0, 0},   {41, 116, 100, 0},  {37, 73, 200, 0},    {58, 36, 300, 0},    {98, 18, 400, 0},
    {140, 27, 500, 0}, {174, 76, 1000, 0}, {159, 133, 2000, 0}, {140, 149, 2500, 0}, {129, 154, 2750, 0}};

inline constexpr u32 kNeedleFlags = 0x4003;
inline constexpr u32 kHiddenIcon = 0x40000003;

// Chain numbers of the images the cycle shows and hides.
inline constexpr int kOffFlag = 3, kDhLight = 5, kWarmup = 6, kTest = 7;

// The images and mouse areas of both gauges; each gauge brings its own
// needle value callbacks.
template <class G>
constexpr auto layout(G g, ValueCallback dh_bug, ValueCallback height) {
    using namespace def;
    return g
        .elements(image(42208, 0x4001),                                               // e0 dial
                  needle(48128, 105, 88, 4, 12, kNeedleFlags, dh_bug, dh_scale),      // e1 DH bug
                  needle(48144, 105, 88, 4, 60, kNeedleFlags, height, height_scale),  // e2 height
                  icon(48160, 111, 33, kHiddenIcon),                                  // e3 OFF flag
                  icon(48176, 94, 16, 0x3),                                           // e4 fixed image
                  icon(48192, 24, 148, kHiddenIcon),                                  // e5 DH light
                  icon(48208, 165, 8, kHiddenIcon),                                   // e6 warm-up
                  icon(48224, 165, 8, kHiddenIcon))                                   // e7 test
        .mouse(click(141, 0, 24, 39, kCursorDown, switch_off), click(165, 0, 21, 39, kCursorHand, test_1),
               click(186, 0, 24, 39, kCursorUp, switch_on), repeat(0, 140, 24, 39, kCursorDown, dh_down),
               click(24, 140, 21, 39, kCursorHand, dh_test), repeat(45, 140, 24, 39, kCursorUp, dh_up),
               click(165, 39, 21, 30, kCursorHand, test_2));
}

}  // namespace kestrane::ralt
