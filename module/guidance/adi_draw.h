// Attitude director indicator images: the value callbacks and image numbers
// shared by every gauge that draws the ADI from the flight director's state.
#pragma once

#include "frame/gauge.h"

namespace kestrane::adi {

// Chain numbers of the ADI's images.
enum : int {
    kSphere = 1,
    kBankScale = 2,
    kSpeedDevImage = 3,
    kFdFlag = 4,
    kAttFlag = 5,
    kPitchBar = 6,
    kRollBar = 7,
    kSpeedDevNeedle = 8,
    kLitBackground = 9,
    kLitSpeedDevNeedle = 10,
};

// The host drops the attitude display when its attitude indicator fails.
inline constexpr FailureEntry kAttitudeFailure[] = {{8, 0}, {0, 0}};

inline f64 KCALL none(Element*) {
    return 0.0;
}
inline f64 KCALL across(Element*) {
    return 1.0;
}
inline f64 KCALL sphere_pitch(Element*) {
    return clamp_back(ac.adi_pitch, -43.0, 43.0);
}
inline f64 KCALL bank(Element*) {
    return ac.adi_bank;
}
inline f64 KCALL speed_dev_pos(Element*) {
    return ac.fd_speed_dev_pos;
}
inline f64 KCALL pitch_bar(Element*) {
    return ac.fd_pitch_bar;
}
inline f64 KCALL roll_bar(Element*) {
    return ac.fd_roll_bar;
}
inline f64 KCALL speed_dev(Element*) {
    return clamp_back(ac.fd_speed_dev, -10.0, 20.0);
}

// Speed-deviation needle: slow at the bottom, fast at the top.
inline NeedlePoint speed_dev_scale[] = {{60, 320, -10.0, 0.0}, {60, 260, 5.0, 0.0}, {60, 200, 20.0, 0.0}};

// e0 to e8, the images every ADI gauge draws, then the gauge's own further
// images. Each gauge brings its sphere pitch and speed-deviation callbacks.
template <class G, class... More>
constexpr auto layout(G g, ValueCallback pitch, ValueCallback deviation, More... more) {
    using namespace def;
    return g.elements(
        failing(image(42016, 0x4001), kAttitudeFailure),  // e0 background (unlit)
        failing(sprite(42017, 150, 150, 150, 150, 0x4003, 150, 150, none, pitch, bank),
                kAttitudeFailure),  // e1 attitude sphere
        failing(sprite(42018, 150, 150, 150, 150, 0x4083, 150, 150, none, none, bank),
                kAttitudeFailure),                                          // e2 bank scale
        moving(42019, 26, 36, 0x4003, across, speed_dev_pos, 0, 1, 0, 15),  // e3 speed deviation
        icon(42020, 57, 188, 0x40000003),                                   // e4 FD flag
        icon(42021, 193, 199, 0x40000003),                                  // e5 attitude flag
        moving(42022, 27, 12, 0x4003, across, pitch_bar, 0, 1, -4, 11),     // e6 pitch bar
        moving(42023, 27, 12, 0x4003, roll_bar, across, 1, 14, 0, 1),       // e7 roll bar
        needle(42024, 42, 260, 3, 30, 0x4003, deviation, speed_dev_scale),  // e8 speed deviation needle
        more...);
}

}  // namespace kestrane::adi
