// panelgen: writes the aircraft's panel.cfg from the window layout table.
// Each window's gauges are laid in rows, left to right in the table's order,
// a new row when the next gauge would pass the window's width or at a "-"
// line; the window is then sized to the gauges it holds.
//
//   panelgen LAYOUT OUT [--module PATH]
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "host/host.h"
#include "host/panel/gauge_size.h"

namespace {

using namespace kestrane;
using namespace kestrane::host;

constexpr int kGap = 4;  // pixels between neighbouring gauges

struct Item {
    std::string name;  // empty: start a new row
};

struct WindowSpec {
    std::string title, ident;
    int visible = 0, position = 0, width = 1024;
    int fixed_w = 0, fixed_h = 0;  // windows that hold none of our gauges
    std::vector<Item> items;
    int line = 0;
};

bool parse_layout(std::istream& in, std::vector<WindowSpec>& out, std::string& error) {
    std::string raw;
    int line = 0;
    while (std::getline(in, raw)) {
        ++line;
        std::string s = raw.substr(0, raw.find('#'));
        s.erase(0, s.find_first_not_of(" \t\r"));
        s.erase(s.find_last_not_of(" \t\r") + 1);
        if (s.empty())
            continue;
        if (s.rfind("window ", 0) == 0) {
            WindowSpec w;
            w.line = line;
            const auto q1 = s.find('"'), q2 = s.find('"', q1 + 1);
            if (q1 == std::string::npos || q2 == std::string::npos) {
                error = "line " + std::to_string(line) + ": window title in quotes expected";
                return false;
            }
            w.title = s.substr(q1 + 1, q2 - q1 - 1);
            std::istringstream kv(s.substr(q2 + 1));
            std::string pair;
            while (kv >> pair) {
                const auto eq = pair.find('=');
                const std::string k = pair.substr(0, eq),
                                  v = eq == std::string::npos ? "" : pair.substr(eq + 1);
                if (k == "ident")
                    w.ident = v;
                else if (k == "visible")
                    w.visible = std::atoi(v.c_str());
                else if (k == "position")
                    w.position = std::atoi(v.c_str());
                else if (k == "width")
                    w.width = std::atoi(v.c_str());
                else if (k == "size" && v.find(',') != std::string::npos) {
                    w.fixed_w = std::atoi(v.c_str());
                    w.fixed_h = std::atoi(v.c_str() + v.find(',') + 1);
                } else {
                    error = "line " + std::to_string(line) + ": unknown window setting " + pair;
                    return false;
                }
            }
            out.push_back(std::move(w));
            continue;
        }
        if (out.empty()) {
            error = "line " + std::to_string(line) + ": gauge before any window";
            return false;
        }
        out.back().items.push_back({s == "-" ? std::string() : s});
    }
    return true;
}

std::string two_digits(std::size_t n) {
    char buf[24];
    std::snprintf(buf, sizeof buf, "%02zu", n);
    return buf;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    std::string module = default_module_path();
    if (args.size() == 4 && args[2] == "--module") {
        module = args[3];
        args.resize(2);
    }
    if (args.size() != 2) {
        std::cerr << "usage: panelgen LAYOUT OUT [--module PATH]\n";
        return 2;
    }
    Host host(module);
    if (!host.ok()) {
        std::cerr << host.error() << '\n';
        return 2;
    }
    std::ifstream in(args[0]);
    std::vector<WindowSpec> windows;
    std::string error;
    if (!in || !parse_layout(in, windows, error)) {
        std::cerr << args[0] << ": " << (error.empty() ? "cannot read" : error) << '\n';
        return 1;
    }

    std::vector<int> uses(static_cast<std::size_t>(host.gauge_count()), 0);
    std::ostringstream body, titles;
    titles << "[Window Titles]\n";
    for (std::size_t wi = 0; wi < windows.size(); ++wi) {
        const WindowSpec& w = windows[wi];
        std::ostringstream gauges;
        int x = 0, y = 0, row_h = 0, right = w.fixed_w, bottom = w.fixed_h, n = 0;
        for (const Item& item : w.items) {
            if (item.name.empty()) {
                if (x > 0)
                    x = 0, y += row_h + kGap, row_h = 0;
                continue;
            }
            const int index = host.gauge_index(item.name);
            if (index < 0) {
                std::cerr << args[0] << ": the module has no gauge \"" << item.name << "\"\n";
                return 1;
            }
            ++uses[static_cast<std::size_t>(index)];
            const panel::Size size = panel::default_size(host.gauge(index), host.bitmap_table());
            if (x > 0 && x + size.w > w.width)
                x = 0, y += row_h + kGap, row_h = 0;
            gauges << "gauge" << two_digits(static_cast<std::size_t>(n++)) << '=' << panel::kModuleFile << '!'
                   << item.name << ',' << x << ',' << y << ',' << size.w << ',' << size.h << '\n';
            right = std::max(right, x + size.w);
            bottom = std::max(bottom, y + size.h);
            row_h = std::max(row_h, size.h);
            x += size.w + kGap;
        }
        const std::string section = "Window" + two_digits(wi);
        titles << section << '=' << w.title << '\n';
        body << "\n[" << section << "]\nsize_mm=" << right << ',' << bottom << "\nposition=" << w.position
             << "\nvisible=" << w.visible << "\nident=" << w.ident
             << "\nwindow_size_ratio=1.000\nbackground_color=16,16,16\n"
             << gauges.str();
    }
    bool complete = true;
    for (int i = 0; i < host.gauge_count(); ++i)
        if (uses[static_cast<std::size_t>(i)] != 1) {
            std::cerr << args[0] << ": gauge \"" << host.gauge(i)->name << "\" placed "
                      << uses[static_cast<std::size_t>(i)] << " times\n";
            complete = false;
        }
    if (!complete)
        return 1;
    std::ofstream out(args[1], std::ios::binary);
    out << "// Kestrane panel configuration, made by tools/panelgen from tools/panelgen/layout.txt.\n"
           "// Gauge lines: kestrane!<gauge name>,x,y,width,height in panel pixels.\n\n"
        << titles.str() << body.str();
    if (!out) {
        std::cerr << args[1] << ": cannot write\n";
        return 2;
    }
    return 0;
}
