// Host-state following: a cockpit switch that mirrors a host light or heater
// compares what it wants with the host's flag every cycle and sends the event
// that brings the host into line, again each cycle until the host agrees.
#pragma once

#include "frame/gauge.h"

namespace kestrane {

// Wanted on: the on event while the host reads exactly 0.0. Wanted off: the
// off event while it reads exactly 1.0.
inline void follow(ModuleVar& state, bool want, u32 on_event, u32 off_event, u32 on_value = 0,
                   u32 off_value = 0) {
    const f64 v = host::read(state);
    if (want) {
        if (v == 0.0)
            host::send_event(on_event, on_value);
    } else if (is_on(v)) {
        host::send_event(off_event, off_value);
    }
}

// A host item with one toggling event.
inline void follow_toggle(ModuleVar& state, bool want, u32 event) {
    follow(state, want, event, event);
}

// Puts out a host light that reads on (toggling event).
inline void switch_off(f64 state, u32 event) {
    if (is_on(state))
        host::send_event(event);
}

}  // namespace kestrane
