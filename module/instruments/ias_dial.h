// The airspeed dial of the captain's panel, shared with its small copy on the
// overview panel: images, needle scales, the bug knobs and the preset buttons.
#pragma once

#include "frame/gauge.h"

namespace kestrane::ias {

inline constexpr u32 kDialBitmap = 42000;
inline constexpr u32 kSpeedNeedleBitmap = 49400;
inline constexpr u32 kMaxNeedleBitmap = 49416;
inline constexpr u32 kBug1Bitmap = 49432;
inline constexpr u32 kBug2Bitmap = 49448;
inline constexpr u32 kNeedleFlags = 0x4003;
inline constexpr i32 kPivotX = 103, kPivotY = 101;
// where each needle bitmap turns about
inline constexpr i32 kSpeedRefX = 5, kSpeedRefY = 80, kBugRefX = 4, kBugRefY = 88;

inline NeedlePoint speed_scale[] = {
    {103, 21, 0, 0},    {130, 26, 60, 0},   {151, 37, 70, 0},   {167, 53, 80, 0},  {183, 95, 100, 0},
    {173, 139, 120, 0}, {160, 158, 130, 0}, {141, 171, 140, 0}, {97, 181, 160, 0}, {75, 176, 170, 0},
    {55, 165, 180, 0},  {39, 149, 190, 0},  {28, 128, 200, 0},  {23, 98, 250, 0},  {30, 67, 300, 0},
    {49, 42, 350, 0},   {76, 26, 400, 0}};
inline NeedlePoint max_scale[] = {
    {103, 21, 0, 0},    {130, 26, 60, 0},   {151, 37, 70, 0},   {167, 53, 80, 0},  {183, 95, 100, 0},
    {173, 139, 120, 0}, {160, 158, 130, 0}, {141, 171, 140, 0}, {97, 181, 160, 0}, {75, 176, 170, 0},
    {55, 165, 180, 0},  {39, 149, 190, 0},  {28, 128, 200, 0},  {23, 98, 250, 0},  {30, 67, 300, 0},
    {49, 42, 350, 0},   {76, 26, 400, 0}};
inline NeedlePoint bug1_scale[] = {{167, 53, 80, 0},   {183, 95, 100, 0},  {173, 139, 120, 0},
                                   {160, 158, 130, 0}, {141, 171, 140, 0}, {97, 181, 160, 0},
                                   {75, 176, 170, 0},  {55, 165, 180, 0},  {39, 149, 190, 0},
                                   {28, 128, 200, 0},  {23, 98, 250, 0}};
inline NeedlePoint bug2_scale[] = {{167, 53, 80, 0},   {183, 95, 100, 0},  {173, 139, 120, 0},
                                   {160, 158, 130, 0}, {141, 171, 140, 0}, {97, 181, 160, 0},
                                   {75, 176, 170, 0},  {55, 165, 180, 0},  {39, 149, 190, 0},
                                   {28, 128, 200, 0},  {23, 98, 250, 0}};

// Bug knobs, one knot per call while held. The bugs keep 3 knots apart:
// raising bug 1 into bug 2 pushes bug 2 up, lowering bug 2 into bug 1 pushes
// bug 1 down. Bug 1 stops at 247, bug 2 at 83 (the needles show 80..250).
inline void bug_1_down(u32& b1) {
    b1 = b1 > 80 ? b1 - 1 : 80;
}
inline void bug_1_up(u32& b1, u32& b2) {
    if (b1 >= 247) {
        b1 = 247;
        return;
    }
    if (b2 <= b1 + 3)
        ++b2;
    ++b1;
}
inline void bug_2_down(u32& b1, u32& b2) {
    if (b2 < 84) {
        b2 = 83;
        return;
    }
    if (b1 + 3 >= b2)
        --b1;
    --b2;
}
inline void bug_2_up(u32& b2) {
    b2 = b2 < 250 ? b2 + 1 : 250;
}

// Mouse handlers of the airspeed indicator (the preset buttons request the
// indicator's own take-off and approach presets).
u32 KCALL bug_1_down_area(PixPoint*, u32);
u32 KCALL bug_1_up_area(PixPoint*, u32);
u32 KCALL bug_2_down_area(PixPoint*, u32);
u32 KCALL bug_2_up_area(PixPoint*, u32);
u32 KCALL preset_takeoff_area(PixPoint*, u32);
u32 KCALL preset_approach_area(PixPoint*, u32);

// The needles' value callbacks of one airspeed gauge.
struct Needles {
    ValueCallback speed, second, bug_1, bug_2;
};

// The dial and its four needles (e0 to e4), then the gauge's own images.
template <class G, class... More>
constexpr auto dial(G g, Needles n, More... more) {
    using namespace def;
    return g.elements(
        image(kDialBitmap, 0x4001),  // e0 dial
        needle(kSpeedNeedleBitmap, kPivotX, kPivotY, kSpeedRefX, kSpeedRefY, kNeedleFlags, n.speed,
               speed_scale),  // e1 airspeed
        needle(kMaxNeedleBitmap, kPivotX, kPivotY, kSpeedRefX, kSpeedRefY, kNeedleFlags, n.second,
               max_scale),  // e2 second
        needle(kBug1Bitmap, kPivotX, kPivotY, kBugRefX, kBugRefY, kNeedleFlags, n.bug_1,
               bug1_scale),  // e3 bug 1
        needle(kBug2Bitmap, kPivotX, kPivotY, kBugRefX, kBugRefY, kNeedleFlags, n.bug_2,
               bug2_scale),  // e4 bug 2
        more...);
}

// The bug knobs and the two preset buttons, then the gauge's own areas.
template <class G, class... More>
constexpr auto knobs(G g, More... more) {
    using namespace def;
    return g.mouse(repeat(0, 0, 25, 43, kCursorDown, bug_1_down_area),
                   repeat(25, 0, 25, 43, kCursorUp, bug_1_up_area),
                   repeat(156, 0, 25, 43, kCursorDown, bug_2_down_area),
                   repeat(181, 0, 25, 43, kCursorUp, bug_2_up_area),
                   click(0, 136, 70, 70, kCursorHand, preset_takeoff_area),
                   click(136, 136, 70, 70, kCursorHand, preset_approach_area), more...);
}

}  // namespace kestrane::ias
