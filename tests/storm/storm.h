// The storm: the whole module driven at random from the cockpit and from the
// host, with what must always hold checked after every step.
#pragma once

#include <cstdint>

#include "host/host.h"

namespace kestrane::storm {

// Finite: the host feeds ordinary values, 0, -1 and huge finite ones; every
// floating-point state field and every drawn value must stay finite.
// Hostile: infinities and NaN as well; no crash and no undefined behaviour,
// and once the host is calm again for a while every floating-point field
// must be finite again (but those that hold a host value as it was read).
enum class Mode { Finite, Hostile };

struct Options {
    std::uint64_t seed = 1;
    long cycles = 20000;  // the episode ends after about this many cycles
    Mode mode = Mode::Finite;
    bool reinstall = true;        // remove and reinstall gauges now and then
    bool reload = true;           // start from a fresh load (else go on as loaded)
    void (*started)() = nullptr;  // called once every gauge is installed and running
};

struct Result {
    long cycles = 0;
    long steps = 0;
    long mouse = 0;   // clicks, right-clicks, moves and holds
    long values = 0;  // tokens, named variables and expressions set
    long reinstalls = 0;
    int tokens = 0, named = 0, expressions = 0;  // what the module was seen to read
    bool failed = false;
    char failure[640]{};  // the broken invariant, with seed and step
};

// One episode on a fresh load of the module. No heap allocation of its own
// once the host's tables have grown (the allocation test relies on it).
bool run_episode(host::Host& host, const Options& options, Result& result);

const char* mode_name(Mode m);

}  // namespace kestrane::storm
