// Scenario scripts: parsing and running them against the stand-in host.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "host/host.h"

namespace kestrane::host {

enum class CmpOp { Eq, Ne, Lt, Le, Gt, Ge, Near };

enum class CmdKind {
    GaugesAll,
    Gauges,
    Remove,
    AircraftOff,
    AircraftDefault,
    Trace,
    Token,
    TokenBcd,
    Named,
    Calc,
    Set,
    Run,
    Click,
    RClick,
    Move,
    Hold,
    ExpectField,
    ExpectToken,
    ExpectNamed,
    ExpectEvent,
    ExpectEventValue,
    ExpectEventCount,
    ExpectNoEvent,
    ExpectNoEvents,
    ExpectSound,
    ExpectShown,
    ExpectHidden,
    ExpectValue,
    ExpectText,
    ExpectWindowOpen,
    ExpectWindowClosed,
};

enum class SoundCheck { Played, PlayedCount, Looping, Stopped, Silent, Playing, Idle, Volume };

struct Command {
    int line = 0;
    CmdKind kind{};
    std::vector<int> gauges;  // registry indices
    std::string name;         // field, named variable, expression or sound
    std::uint32_t id = 0;     // token, event or window
    double value = 0.0;
    double tolerance = 0.0;
    CmpOp op = CmpOp::Eq;
    SoundCheck sound = SoundCheck::Played;
    int x = 0, y = 0, n = 0;
    int branch = 0;                // element N.K: K (0 for a chain element)
    int axis = 0;                  // expect value: 0 needle or x, 1 y, 2 rotation
    std::vector<TraceItem> trace;  // trace: the columns
};

// Bounds on what a script may ask: its size, one line, one run or hold.
inline constexpr std::size_t kMaxScriptBytes = 4u << 20;

// Reads a script file, at most one byte past kMaxScriptBytes; false when it
// cannot be read.
bool read_script_text(const std::string& path, std::string& text);
inline constexpr std::size_t kMaxLineBytes = 4096;
inline constexpr int kMaxCycles = 1000000;

struct Script {
    std::string file;
    std::vector<Command> commands;
};

struct RunTotals {
    int passed = 0;
    int failed = 0;
};

struct ParseError {
    std::string file;
    int line = 0;
    std::string message;
};

// Parses `text` as the script `file`. Names are checked against the module
// loaded in `host` (gauges, fields, mouse areas). Returns false and fills
// `error` on the first fault.
bool parse_script(const std::string& file, const std::string& text, const Host& host, Script& script,
                  ParseError& error);

// Runs the commands of one script, one at a time.
class Runner {
public:
    Runner(Host& host, RunTotals& totals, std::ostream& out);
    // Loads the module afresh for the script `file`.
    bool begin(const std::string& file);
    void execute(const Command& c);

private:
    void fail(const Command& c, const std::string& expected, const std::string& got);
    int count_event(std::uint32_t id, const double* value) const;
    bool check_sound(const Command& c);
    bool check_drawn(const Command& c, GaugeHeader* g);

    Host& host_;
    RunTotals& totals_;
    std::ostream& out_;
    std::string file_;
};

// Runs one parsed script on a freshly loaded module; failed checks are
// written to `out` as FILE:LINE: expected ..., got ...
void run_script(const Script& script, Host& host, RunTotals& totals, std::ostream& out);

// The whole runner: files and folders (every *.scn inside, by name). Prints
// failures, parse errors and the closing "N passed, N failed" line; returns
// the exit status (0, 1 or 2).
int run_paths(const std::vector<std::string>& paths, Host& host, std::ostream& out);

}  // namespace kestrane::host
