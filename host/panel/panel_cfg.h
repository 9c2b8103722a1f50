// Panel configuration files (panel.cfg) in the simulator's own format: window
// sections with their size and ident, and gaugeNN lines placing gauges of the
// module on them. The reader checks what the simulator would trip over.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrane::host::panel {

// A gauge's default size in panel pixels: the registry's width and the height
// its images and mouse boxes reach.
struct Size {
    int w = 0;
    int h = 0;
};

// The default size of a gauge of the module, or nothing when the module has
// no gauge of that name.
using SizeOf = std::function<std::optional<Size>(std::string_view name)>;

struct Placed {
    std::string name;  // gauge name as the module registers it
    int x = 0, y = 0, w = 0, h = 0;
    int line = 0;
};

struct Window {
    std::string section;  // "Window00"
    std::string title;    // from [Window Titles], may be empty
    std::string ident;    // number or symbolic ident
    int width = 0, height = 0;
    bool visible = false;
    int position = 0;               // screen anchor 0..8: top-left, top, top-right, ... bottom-right
    int background[3] = {0, 0, 0};  // background_color
    int line = 0;                   // line of the section header
    std::vector<Placed> gauges;
};

struct Panel {
    std::vector<Window> windows;
};

struct Error {
    int line = 0;
    std::string message;
};

// Reads a whole file's text. On a fault returns nothing and says where.
std::optional<Panel> read(std::string_view text, const SizeOf& size_of, Error& error);

// The module file name gauge lines may put before '!'.
inline constexpr std::string_view kModuleFile = "kestrane";

}  // namespace kestrane::host::panel
