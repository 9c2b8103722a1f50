// What the cockpit server hands out: the page's own files, the module's
// bitmaps and sounds, and the layout of the panel windows. Everything is made
// once at start and never changes while the server runs.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "host/panel/panel_cfg.h"

namespace kestrane::host {
class Host;
}

namespace kestrane::host::cockpit {

struct Asset {
    std::string type;  // MIME type
    std::string body;
};

class Assets {
public:
    // Reads the page files of the fixed list from `page_dir`; false and a
    // reason when one is missing.
    bool load_page(const std::string& page_dir, std::string& error);
    // The module's bitmaps, its loaded sounds as WAV files and the layout.
    void load_module(const Host& host, const panel::Panel& panel);

    // The asset at a request path, or null (then the request gets a 404).
    const Asset* find(std::string_view path) const;
    std::size_t size() const { return by_path_.size(); }

private:
    std::map<std::string, Asset, std::less<>> by_path_;
};

// The page files, served at "/" + name ("/" itself is index.html).
inline constexpr std::string_view kPageFiles[] = {"index.html", "cockpit.js", "draw.js", "cockpit.css"};

// A 44-byte RIFF header and the samples: a whole WAV file.
std::string wav_file(int channels, int rate, int bits, const unsigned char* data, std::size_t n);

}  // namespace kestrane::host::cockpit
