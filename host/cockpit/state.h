// What the page is told: the whole cockpit state when it connects, then only
// what changed each cycle (hidden bits, drawn values and texts, open windows,
// sounds, key events, state fields).
#pragma once

#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "frame/gauge_abi.h"

namespace kestrane::host {
class Host;
struct Drawn;
}  // namespace kestrane::host

namespace kestrane::host::cockpit {

using json = nlohmann::json;

class StateTracker {
public:
    // `symbolic` are the windows the host does not know by number (the main
    // panel), with whether each is open at start.
    StateTracker(Host& host, std::vector<std::pair<std::string, bool>> symbolic);

    // Opens or closes a window by its ident text; false for an unknown one.
    bool set_window(const std::string& ident, bool open);

    // Takes the key events and sound operations logged since the last call
    // (call after every cycle and after mouse handlers).
    void collect();
    // Everything as it is now; the baseline is left alone.
    json full() const;
    // What changed since the last diff, or null when nothing did.
    json diff();

private:
    struct Slot {
        GaugeHeader* g = nullptr;
        int gauge = 0;  // registry index
        int index = 0;  // drawing-order index in the gauge
        Element* e = nullptr;
        bool hidden = true;
        Drawn const* drawn_at(const Host& host) const;
        f64 v[3]{};
        std::string text;
        u8 have = 0;
    };
    json element_entry(const Slot& s, bool hidden, const Drawn* d) const;
    std::vector<std::string> window_list() const;
    json sound_state() const;

    Host& host_;
    std::vector<std::pair<std::string, bool>> symbolic_;
    std::vector<Slot> slots_;
    std::vector<f64> fields_;
    std::vector<std::string> windows_;
    struct Heard {
        bool playing = false, looping = false;
        std::int32_t volume = 1;  // none yet
    };
    std::map<std::string, Heard> heard_;
    json sounds_ = json::array();
    json events_ = json::array();
};

}  // namespace kestrane::host::cockpit
