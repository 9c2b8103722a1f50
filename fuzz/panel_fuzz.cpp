// Fuzzes the panel.cfg reader: whatever the text, it either accepts it with
// every gauge inside its window and none overlapping, or names a line of it.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/panel/panel_cfg.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const kestrane::host::panel::SizeOf sizes =
        [](std::string_view name) -> std::optional<kestrane::host::panel::Size> {
        if (name == "kestrane ias_jm47")
            return kestrane::host::panel::Size{206, 206};
        if (name == "kestrane vmo_jm47")
            return kestrane::host::panel::Size{17, 17};
        return std::nullopt;
    };
    kestrane::host::panel::Error error;
    const auto panel = kestrane::host::panel::read(text, sizes, error);
    if (!panel) {
        int lines = 1;
        for (char c : text)
            lines += c == '\n';
        if (error.line < 1 || error.line > lines || error.message.empty())
            std::abort();
        return 0;
    }
    for (const auto& w : panel->windows)
        for (const auto& g : w.gauges)
            if (g.x < 0 || g.y < 0 || g.w <= 0 || g.h <= 0 || g.x + g.w > w.width || g.y + g.h > w.height)
                std::abort();
    return 0;
}
