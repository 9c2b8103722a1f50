// The module's own sounds: one device, one static buffer per sound, loaded
// when the panel-toggle gauge is installed and released when it is removed.
#pragma once

#include <cstdint>

#include "frame/gauge_abi.h"

namespace kestrane::sound {

// Table order: load order and volume-table order.
enum Id : u8 {
    kClick,
    kHi,
    kLo,
    kGongMono,
    kKlaxonCont,
    kSonnerie,
    kBrakes,
    kCrecelle,
    kKlaxonGear,
    kCacheMetal,
    kV80Kts,
    kV1Kts,
    kVrKts,
    kAirCond,
    kAirCondEnt,
    kAirCondSort,
    kGpwsGlideSlope,
    kGpwsPullUp,
    kAltRe,
    kCount
};

inline constexpr u32 kOnce = 0;
inline constexpr u32 kLooping = 1;

// Service 2 of the panel-toggle gauge: device, all sounds, their volumes.
void start_and_load(std::uintptr_t instance);
// Service 12 of the panel-toggle gauge: sounds in reverse order, then the device.
void shutdown();

void play(Id id, u32 mode = kOnce);
void stop(Id id);
void set_volume(Id id, i32 volume);  // hundredths of a decibel, clamped to -10000 .. 0

// Master volume of the first 16 sounds, stepped by the audio panel.
void master_down();
void master_up();

// Shorthands for the switch sounds.
inline void click() {
    play(kClick);
}
inline void cachemetal() {
    play(kCacheMetal);
}

bool loaded(Id id);

}  // namespace kestrane::sound
