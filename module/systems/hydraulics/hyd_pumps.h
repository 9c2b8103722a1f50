// Rules shared by the hydraulic circuit gauges: the guarded pump switches and
// pump control of the green and blue panels, the engine-driven pump build-up
// and decay, and the pressure dial.
#pragma once

#include "frame/gauge.h"

namespace kestrane::hyd {

inline constexpr u16 kNominal = 2500;
inline constexpr u16 kLowPress = 1751;     // lights and users: working from here up
inline constexpr u16 kGreenNormal = 1750;  // standby circuits take over below this

// Pump control: 0 off, 1 running, 2 selected and waiting for the essential bus.
inline constexpr u8 kPumpOff = 0;
inline constexpr u8 kPumpRunning = 1;
inline constexpr u8 kPumpWaiting = 2;

// Regulation of the electric pumps.
inline constexpr u8 kSteady = 0;  // red; "off" for the yellow pumps
inline constexpr u8 kRising = 1;
inline constexpr u8 kFalling = 2;

inline bool ess_bus() {
    return ac.elec_ess_bus == 1;
}

// Pressure bleeding off at 15 a cycle; the last few units go at once.
inline u16 bleed(u16 p) {
    return p < 15 ? 0 : static_cast<u16>(p - 15);
}

// Guarded pump switch, 0 off, 1 on, 2 on with the guard closed.
inline void guarded_up(u8& sw) {
    if (sw == 0) {
        sw = 1;
        sound::click();
    } else if (sw == 1) {
        sw = 2;
        sound::cachemetal();
    }
}
inline void guarded_down(u8& sw) {
    if (sw == 2) {
        sw = 1;  // lifting the guard makes no sound
    } else if (sw == 1) {
        sw = 0;
        sound::click();
    }
}

// The essential bus both starts and stops a pump; without it the control
// stays where it is, apart from a new selection, which waits.
inline void pump_control(u8 sw, u8& state) {
    if (sw == 0) {
        if (ess_bus())
            state = kPumpOff;
    } else if (ess_bus() && state == kPumpWaiting) {
        state = kPumpRunning;
    } else if (state == kPumpOff) {
        state = kPumpWaiting;
    }
}

// Engine-driven pump: builds up 30 a cycle to 2550, then settles back to
// 2500; without drive it bleeds off 15 a cycle.
inline void engine_pump(u16& press, u8& nominal, bool delivering) {
    if (delivering) {
        if (!nominal && press < 2550) {
            press = static_cast<u16>(press + 30);
        } else {
            nominal = 1;
            press = press > kNominal ? static_cast<u16>(press - 15) : kNominal;
        }
    } else if (press < 15) {
        press = 0;
        nominal = 0;
    } else {
        press = static_cast<u16>(press - 15);
    }
}

// Images e1 .. e14 of the green and blue panels.
struct PumpPanel {
    u8 sw1, sw2, state1, state2;
    u16 press1, press2;
};

inline void show_pump_panel(GaugeHeader* g, const PumpPanel& p) {
    const bool lit = ess_bus();
    show(g, 1, lit && p.press1 < kLowPress);
    show(g, 2, lit && p.press2 < kLowPress);
    show(g, 3, lit && p.state1 != kPumpRunning);
    show(g, 4, lit && p.state1 == kPumpRunning);
    show(g, 5, lit && p.state2 != kPumpRunning);
    show(g, 6, lit && p.state2 == kPumpRunning);
    show(g, 7, p.sw1 == 0);
    show(g, 8, p.sw1 == 1);
    show(g, 9, p.sw2 == 0);
    show(g, 10, p.sw2 == 1);
    show(g, 11, p.sw1 != 2);
    show(g, 12, p.sw1 == 2);
    show(g, 13, p.sw2 != 2);
    show(g, 14, p.sw2 == 2);
}

}  // namespace kestrane::hyd
