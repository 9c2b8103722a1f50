// The cockpit in a browser: the module runs in real time with the aircraft
// model on, and a web page draws the panel windows and works the mouse.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>

namespace kestrane::host {

class Host;

namespace cockpit {

struct Options {
    std::string panel;     // panel.cfg (the shipped one by default)
    std::string script;    // optional scenario script run first (checks skipped)
    std::string page_dir;  // the page's static files (the source tree's by default)
    std::string listen = "127.0.0.1";
    int port = 8018;     // 0: any free port
    double seconds = 0;  // stop after this long (0: until interrupted)
};

// Parses `cockpit` arguments; on a fault returns false and says why in `error`.
bool parse_options(int argc, const char* const* argv, Options& options, std::string& error);

// Serves the cockpit until interrupted (or Options::seconds). Prints the
// address on `out` once it listens. Returns the exit status.
int serve(Host& host, const Options& options, std::ostream& out, std::ostream& err);

}  // namespace cockpit
}  // namespace kestrane::host
