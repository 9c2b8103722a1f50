#include "host/panel/panel_cfg.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdint>
#include <map>
#include <set>

namespace kestrane::host::panel {

namespace {

// Window keys the simulator knows besides size, ident, visible and gauges.
constexpr std::array kOtherWindowKeys = {
    "file",        "file_1024",   "position",         "window_size_ratio", "window_pos",
    "window_size", "zorder",      "background_color", "sizeable",          "nomenu",
    "child_3d",    "transparent", "alpha_blend",      "no_luminous",       "render_3d_window",
    "type",        "size_pixels",
};

// Sections accepted but not read: views and panel colours.
constexpr std::array kOtherSections = {"views", "default view", "color"};

constexpr long kMaxCoordinate = 100000;

std::string lower(std::string_view s) {
    std::string out(s);
    for (char& c : out)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

std::string_view trim(std::string_view s) {
    while (!s.empty() && std::isspace(static_cast<unsigned char>(s.front())))
        s.remove_prefix(1);
    while (!s.empty() && std::isspace(static_cast<unsigned char>(s.back())))
        s.remove_suffix(1);
    return s;
}

bool all_digits(std::string_view s) {
    return !s.empty() && std::all_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// "Window07" -> true when `s` is `prefix` followed by one or more digits.
bool numbered(std::string_view s, std::string_view prefix) {
    return s.size() > prefix.size() && lower(s.substr(0, prefix.size())) == prefix &&
           all_digits(s.substr(prefix.size())) && s.size() - prefix.size() <= 3;
}

std::optional<long> number(std::string_view s) {
    s = trim(s);
    long v = 0;
    const char* end = s.data() + s.size();
    auto [p, ec] = std::from_chars(s.data(), end, v);
    if (s.empty() || ec != std::errc() || p != end || v < -kMaxCoordinate || v > kMaxCoordinate)
        return std::nullopt;
    return v;
}

std::vector<std::string_view> split(std::string_view s, char sep) {
    std::vector<std::string_view> parts;
    for (;;) {
        const auto at = s.find(sep);
        parts.push_back(trim(s.substr(0, at)));
        if (at == std::string_view::npos)
            return parts;
        s.remove_prefix(at + 1);
    }
}

bool overlap(const Placed& a, const Placed& b) {
    return a.x < b.x + b.w && b.x < a.x + a.w && a.y < b.y + b.h && b.y < a.y + a.h;
}

struct Reader {
    const SizeOf& size_of;
    Error& error;
    Panel panel;
    std::map<std::string, std::pair<std::string, int>> titles;  // lower section -> title, line
    std::set<std::string> sections;                             // lower names seen
    std::set<std::string> keys;                                 // lower keys of the current section
    std::map<std::string, int> idents;                          // ident -> line
    enum { kNone, kTitles, kWindow, kOther } where = kNone;
    bool has_size = false;

    bool fail(int line, std::string message) {
        error.line = line;
        error.message = std::move(message);
        return false;
    }

    bool section(std::string_view name, int line) {
        const std::string key = lower(name);
        if (!end_window())
            return false;
        if (sections.count(key) != 0)
            return fail(line, "section [" + std::string(name) + "] appears twice");
        sections.insert(key);
        keys.clear();
        if (key == "window titles") {
            where = kTitles;
        } else if (numbered(name, "window")) {
            where = kWindow;
            has_size = false;
            Window w;
            w.section = std::string(name);
            w.line = line;
            panel.windows.push_back(std::move(w));
        } else if (std::find(kOtherSections.begin(), kOtherSections.end(), key) != kOtherSections.end() ||
                   numbered(name, "vcockpit")) {
            where = kOther;
        } else {
            return fail(line, "unknown section [" + std::string(name) + "]");
        }
        return true;
    }

    bool entry(std::string_view key, std::string_view value, int line) {
        const std::string k = lower(key);
        if (where == kNone)
            return fail(line, "line outside any section");
        if (where == kOther)
            return true;
        if (keys.count(k) != 0)
            return fail(line, "key " + std::string(key) + " appears twice in its section");
        keys.insert(k);
        if (where == kTitles) {
            if (!numbered(key, "window"))
                return fail(line, "malformed window title key " + std::string(key));
            titles[k] = {std::string(value), line};
            return true;
        }
        Window& w = panel.windows.back();
        if (numbered(key, "gauge"))
            return gauge(w, value, line);
        if (k == "size_mm") {
            const auto parts = split(value, ',');
            const auto width = number(parts[0]);
            const auto height = parts.size() == 2 ? number(parts[1]) : std::nullopt;
            if (!width || !height || *width <= 0 || *height <= 0)
                return fail(line, "malformed size_mm: two positive whole numbers expected");
            w.width = static_cast<int>(*width);
            w.height = static_cast<int>(*height);
            has_size = true;
            return true;
        }
        if (k == "position") {
            const auto n = number(value);
            if (!n || *n < 0 || *n > 8)
                return fail(line, "malformed position: 0 to 8 expected");
            w.position = static_cast<int>(*n);
            return true;
        }
        if (k == "background_color") {
            const auto parts = split(value, ',');
            if (parts.size() != 3)
                return fail(line, "malformed background_color: red,green,blue expected");
            for (int i = 0; i < 3; ++i) {
                const auto n = number(parts[static_cast<std::size_t>(i)]);
                if (!n || *n < 0 || *n > 255)
                    return fail(line, "malformed background_color: 0 to 255 expected");
                w.background[i] = static_cast<int>(*n);
            }
            return true;
        }
        if (k == "visible") {
            if (value != "0" && value != "1")
                return fail(line, "malformed visible: 0 or 1 expected");
            w.visible = value == "1";
            return true;
        }
        if (k == "ident") {
            const bool symbolic = !value.empty() && std::all_of(value.begin(), value.end(), [](char c) {
                return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
            });
            if (!symbolic)
                return fail(line, "malformed ident: a number or a name expected");
            if (auto seen = idents.find(std::string(value)); seen != idents.end())
                return fail(line, "ident " + std::string(value) + " already used at line " +
                                      std::to_string(seen->second));
            idents[std::string(value)] = line;
            w.ident = std::string(value);
            return true;
        }
        if (std::find(kOtherWindowKeys.begin(), kOtherWindowKeys.end(), k) != kOtherWindowKeys.end())
            return true;
        return fail(line, "unknown window key " + std::string(key));
    }

    // gaugeNN=[kestrane!]name,x,y[,w[,h]]
    bool gauge(Window& w, std::string_view value, int line) {
        const auto parts = split(value, ',');
        if (parts.size() < 3 || parts.size() > 5)
            return fail(line, "malformed gauge line: name,x,y[,w[,h]] expected");
        std::string_view name = parts[0];
        if (const auto bang = name.find('!'); bang != std::string_view::npos) {
            if (lower(trim(name.substr(0, bang))) != kModuleFile)
                return fail(line, "gauge from another module: " + std::string(name));
            name = trim(name.substr(bang + 1));
        }
        if (name.empty())
            return fail(line, "malformed gauge line: no gauge name");
        const auto size = size_of(name);
        if (!size)
            return fail(line, "the module has no gauge \"" + std::string(name) + "\"");
        long v[4] = {0, 0, size->w, size->h};
        for (std::size_t i = 1; i < parts.size(); ++i) {
            const auto n = number(parts[i]);
            if (!n)
                return fail(line, "malformed gauge line: bad number \"" + std::string(parts[i]) + "\"");
            v[i - 1] = *n;
        }
        // A width alone scales the default height with it.
        if (parts.size() == 4 && size->w > 0)
            v[3] = (static_cast<long>(size->h) * v[2] + size->w / 2) / size->w;
        if (v[2] <= 0 || v[3] <= 0)
            return fail(line, "gauge " + std::string(name) + " has no area");
        Placed p{std::string(name),      static_cast<int>(v[0]), static_cast<int>(v[1]),
                 static_cast<int>(v[2]), static_cast<int>(v[3]), line};
        for (const Placed& other : w.gauges)
            if (overlap(p, other))
                return fail(line, "gauge " + p.name + " overlaps " + other.name + " (line " +
                                      std::to_string(other.line) + ")");
        w.gauges.push_back(std::move(p));
        return true;
    }

    // Checks the window just read, now that its size is known.
    bool end_window() {
        if (where != kWindow)
            return true;
        where = kNone;
        const Window& w = panel.windows.back();
        if (!has_size)
            return fail(w.line, "window [" + w.section + "] has no size_mm");
        for (const Placed& p : w.gauges)
            if (p.x < 0 || p.y < 0 || p.x + p.w > w.width || p.y + p.h > w.height)
                return fail(p.line, "gauge " + p.name + " lies outside its window (" +
                                        std::to_string(w.width) + "x" + std::to_string(w.height) + ")");
        return true;
    }

    bool finish(int last_line) {
        if (!end_window())
            return false;
        for (Window& w : panel.windows) {
            auto t = titles.find(lower(w.section));
            if (t != titles.end()) {
                w.title = t->second.first;
                titles.erase(t);
            }
        }
        if (!titles.empty()) {
            const auto& [key, title] = *titles.begin();
            return fail(title.second, "title for a window that has no section: " + key);
        }
        if (panel.windows.empty())
            return fail(last_line, "no window");
        return true;
    }
};

}  // namespace

std::optional<Panel> read(std::string_view text, const SizeOf& size_of, Error& error) {
    Reader r{size_of, error, {}, {}, {}, {}, {}};
    int line = 0;
    while (!text.empty() || line == 0) {
        ++line;
        const auto eol = text.find('\n');
        std::string_view s = text.substr(0, eol);
        text.remove_prefix(eol == std::string_view::npos ? text.size() : eol + 1);
        if (const auto c = s.find("//"); c != std::string_view::npos)
            s = s.substr(0, c);
        if (const auto c = s.find(';'); c != std::string_view::npos && trim(s.substr(0, c)).empty())
            s = {};
        s = trim(s);
        if (s.empty())
            continue;
        if (s.front() == '[') {
            if (s.back() != ']' || s.size() < 3)
                return r.fail(line, "malformed section header"), std::nullopt;
            if (!r.section(trim(s.substr(1, s.size() - 2)), line))
                return std::nullopt;
            continue;
        }
        const auto eq = s.find('=');
        if (eq == std::string_view::npos || trim(s.substr(0, eq)).empty())
            return r.fail(line, "malformed line: key=value expected"), std::nullopt;
        if (!r.entry(trim(s.substr(0, eq)), trim(s.substr(eq + 1)), line))
            return std::nullopt;
    }
    if (!r.finish(line))
        return std::nullopt;
    return std::move(r.panel);
}

}  // namespace kestrane::host::panel
