// What a gauge source file needs: the declaration form, the host services,
// the shared state, images and sounds, and the common switch rule.
#pragma once

#include "frame/convert.h"
#include "frame/elements.h"
#include "frame/gauge_def.h"
#include "frame/host.h"
#include "frame/sound.h"
#include "frame/state.h"

namespace kestrane {

// Moves a switch: a real change plays CLICK once; asking for the position it
// already has does nothing. Returns whether it moved.
inline bool set_switch(u8& field, u8 position) {
    if (field == position)
        return false;
    field = position;
    sound::click();
    return true;
}

// Spring-loaded controls (repeat areas): the first call sets the counter to
// 10, later calls while held add 2 (it stays between 10 and 12); the owning
// callback lowers it by 1 each cycle. Pressed while above 0.
inline void spring_press(u8& counter) {
    if (counter == 0)
        counter = 10;
    else if (counter <= 10)
        counter = static_cast<u8>(counter + 2);
}
inline void spring_release(u8& counter) {
    if (counter > 0)
        --counter;
}

// Guarded switch, upper area: the first click opens the guard; then a switch
// that is off goes on (CLICK), and the guard closes only over a switch that is
// on (CACHEMETAL).
inline void guard_upper(u8& guard, u8& sw) {
    if (guard == 0) {
        guard = 1;
    } else if (sw == 1) {
        guard = 0;
        sound::cachemetal();
    } else {
        sw = 1;
        sound::click();
    }
}
// Guarded switch, lower area: opens the guard, or turns the switch off (CLICK).
inline void guard_lower(u8& guard, u8& sw) {
    if (guard == 0) {
        guard = 1;
    } else if (sw != 0) {
        sw = 0;
        sound::click();
    }
}

// A token variable the gauge reads.
constexpr ModuleVar token(u32 id) {
    ModuleVar v{};
    v.id = id;
    return v;
}

// Host flags are compared with the exact doubles 1.0 and 0.0.
inline bool is_on(f64 v) {
    return v == 1.0;
}

// Clamps a needle's field to the dial, stores it back and returns it.
template <class T>
f64 clamp_back(T& field, f64 lo, f64 hi) {
    f64 v = static_cast<f64>(field);
    if (!(v >= lo))
        v = lo;
    if (v > hi)
        v = hi;
    field = static_cast<T>(v);
    return v;
}

}  // namespace kestrane
