// Central warning panel: the gong request cycle each light shares.
//
// A request goes 0 -> 1 when the warning arises, the sequencer in the marker
// light gauge sets it to 2 as it gongs and takes the warning's code; the
// warning puts it back to 0 once it is out, and gives the code back.
#pragma once

#include "frame/gauge.h"

namespace kestrane::warn {

// Warning states.
inline constexpr u8 kOff = 0, kLit = 1, kAcknowledged = 2;

// Every warning light: e0, declared hidden; click box of the acknowledgeable ones.
inline constexpr u32 kLightFlags = 0x40000003;
inline constexpr i32 kBoxW = 82, kBoxH = 35;

inline void raise(u8& request) {
    if (request == 0)
        request = 1;
}

// Re-arms a request whose gong was given once the warning is no longer active.
inline bool rearm(u8& request, bool active) {
    if (request == 2 && !active) {
        request = 0;
        return true;
    }
    return false;
}

// Gives back the gong sequencer's code if it is this warning's.
inline void release_code(u8 code) {
    if (ac.warn_alert_code == code)
        ac.warn_alert_code = 0;
}

// Acknowledgement of one lit state.
inline void acknowledge(u8& state) {
    if (state == kLit)
        state = kAcknowledged;
}

}  // namespace kestrane::warn
