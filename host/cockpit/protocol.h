// Messages from the page over the WebSocket, checked before anything reaches
// the module.
#pragma once

#include <string>
#include <string_view>

namespace kestrane::host::cockpit {

struct Request {
    enum Kind { Hello, Bye, Down, Up, Right, Move, Window, Speed, Step } kind = Hello;
    const void* conn = nullptr;  // the connection it came from
    int gauge = -1;              // registry index
    int x = 0, y = 0;            // gauge pixels
    std::string ident;           // window
    bool open = false;
    int speed = 1;  // cycles per tick: 0 paused, 1, 2, 4, 8; kMaxSpeed as fast as the host goes
};

inline constexpr int kMaxSpeed = -1;

// {"t":"down"|"up"|"right"|"move","g":G,"x":X,"y":Y}, {"t":"window","ident":"10100","open":true},
// {"t":"speed","v":"pause"|"1"|"2"|"4"|"8"|"max"}, {"t":"step"}. False and a
// reason for anything else.
bool parse_request(std::string_view text, Request& r, std::string& error);

}  // namespace kestrane::host::cockpit
