// Fuzzes the scenario parser: any text ends in a script or a file:line error,
// never a crash, a hang or a read outside the text. Gauge, field and sound
// names come from the module the stand-in host loads (KESTRANE_MODULE, else
// the release build's), so that whole commands are reached.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/scenario.h"

namespace {
kestrane::host::Host& host() {
    static kestrane::host::Host h;
    return h;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    kestrane::host::Script script;
    kestrane::host::ParseError error;
    if (kestrane::host::parse_script("fuzz.scn", text, host(), script, error)) {
        using kestrane::host::CmdKind;
        for (const auto& c : script.commands) {
            const bool cycles = c.kind == CmdKind::Run || c.kind == CmdKind::Hold;
            if (c.line < 1 || (cycles && (c.n < 0 || c.n > kestrane::host::kMaxCycles)))
                std::abort();
        }
    } else if (error.line < 1 || error.message.empty()) {
        std::abort();
    }
    return 0;
}
