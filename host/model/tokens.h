// Host token numbers the aircraft model reads and writes.
#pragma once

#include <array>
#include <cstdint>

namespace kestrane::host::model::tok {

using Id = std::uint32_t;

constexpr double kFull = 8388608.0;  // tank level fraction scale

constexpr Id kTick = 1, kClockH = 3, kClockM = 4, kPitotHeat = 13, kLanding = 14;
constexpr Id kCom1 = 23, kNav1 = 24, kNav2 = 27, kDme1 = 31, kDme2 = 35, kXpdr = 38, kAdf1Brg = 39;
constexpr Id kCdi = 40, kGsDev = 41, kToFrom = 43, kGsValid = 44, kCourse = 45, kNav1Code = 46;
constexpr Id kNav1Signal = 49, kNav2Code = 55, kNav2Brg = 59, kOnGround = 60, kIas = 61;
constexpr Id kSpeed2 = 63, kMach = 64, kVs = 65, kStall = 67, kBall = 69, kTurnRate = 70;
constexpr Id kAltM = 73, kAltFt = 74, kBaroHpa = 75, kBaroInHg = 76, kPitch = 78, kBank360 = 79;
constexpr Id kBank = 80, kCompass = 83, kHeading = 84;
constexpr Id kApOn = 103, kApWing = 104, kApNav = 105, kApHdg = 106, kApAlt = 108, kApLoc = 111;
constexpr Id kApGs = 112;
constexpr Id kTank3 = 289, kTankLA = 291, kTankLB = 293, kTankRA = 297, kTankRB = 299;  // +1: capacity
constexpr Id kFuelWeight = 306, kOilQty = 270;
constexpr Id kAileron = 313, kRudder = 316, kElevator = 317, kTrim = 318;
constexpr Id kBrakeL = 320, kBrakeR = 321, kParkBrake = 323;
constexpr Id kSpeedbrakeLever = 325, kSpeedbrakeL = 326, kSpeedbrakeR = 327, kFlapHandle = 328;
constexpr Id kGearHandle = 331, kGearM = 332, kGearL = 333, kGearR = 334;
constexpr Id kOat = 341, kTat = 350, kMarker = 354, kBeacon = 368, kTaxiLight = 369;
constexpr Id kNav1Brg = 550, kVelAlong = 551, kVelAcross = 552;
constexpr Id kSimTime = 604, kSimTime2 = 607, kAgl = 614, kNavLight = 619, kWshieldLight = 621;
constexpr Id kProbe774 = 774, kElevatorFrac = 782, kAileronFrac = 784, kRudderFrac = 786;
constexpr Id kHydItem = 824, kExit = 868, kCom2 = 870;
constexpr Id kAntiIce1 = 883, kAntiIce2 = 884, kValveL = 895, kValveR = 896, kDeice = 905;
constexpr Id kFlapL = 907, kFlapR = 908;

struct EngineTokens {
    Id throttle, lever, fuel_lever, selector, failed;
    Id n1, n2, egt, ff, oil_press, oil_temp, rev;
};
constexpr std::array<EngineTokens, 2> kEng = {{
    {128, 558, 560, 307, 564, 624, 625, 631, 638, 562, 561, 641},
    {163, 568, 570, 906, 574, 643, 644, 650, 657, 572, 571, 660},
}};

}  // namespace kestrane::host::model::tok
