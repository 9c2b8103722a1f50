// kestrane-host: loads the gauge module and runs it headless.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#if KESTRANE_COCKPIT
#include "host/cockpit/cockpit.h"
#endif
#include "host/host.h"
#include "host/panel/gauge_size.h"
#include "host/panel/panel_cfg.h"
#include "host/scenario.h"

namespace {

using namespace kestrane;
using namespace kestrane::host;

int usage() {
    std::cerr << "usage: kestrane-host [--module PATH] run [--record-audio FILE.wav] [--trace FILE.csv] "
                 "FILE|DIR...\n"
                 "       kestrane-host [--module PATH] gauges\n"
                 "       kestrane-host [--module PATH] fields\n"
                 "       kestrane-host [--module PATH] elements\n"
                 "       kestrane-host [--module PATH] panel FILE\n"
#if KESTRANE_COCKPIT
                 "       kestrane-host [--module PATH] cockpit [--panel FILE] [--port N] [--listen ADDR] "
                 "[--script FILE.scn]\n"
#endif
        ;
    return 2;
}

std::string number_text(double v, FieldType t) {
    char buf[64];
    if (t == kF32 || t == kF64)
        std::snprintf(buf, sizeof buf, "%.9g", v);
    else
        std::snprintf(buf, sizeof buf, "%.0f", v);
    return buf;
}

int list_gauges(Host& host) {
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        std::cout << i << '\t' << g->name << '\t' << g->size_x_mm << '\t'
                  << (g->callback ? "callback" : "none") << '\t' << Host::chain_length(g) << '\t'
                  << Host::child_rows(g) << '\n';
    }
    return 0;
}

const char* kind_text(u32 kind) {
    static const char* const names[] = {"static", "needle", "string", "slider", "icon", "moving", "sprite"};
    return kind < 7 ? names[kind] : "unknown";
}

// One line an element: gauge index, gauge name, element, kind, bitmap id, x, y, declared flags.
int list_elements(Host& host) {
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        Host::for_each_element(g, [&](Element* e, const std::string& label) {
            char flags[16];
            std::snprintf(flags, sizeof flags, "0x%X", e->flags);
            std::cout << i << '\t' << g->name << '\t' << label << '\t' << kind_text(e->kind) << '\t';
            if (e->kind == kString)
                std::cout << '-';
            else
                std::cout << e->bitmap;
            std::cout << '\t' << e->x << '\t' << e->y << '\t' << flags << '\n';
        });
    }
    return 0;
}

int list_fields(Host& host) {
    const FieldTable* t = host.field_table();
    if (t == nullptr) {
        std::cerr << "the module exports no field table\n";
        return 2;
    }
    for (u32 i = 0; i < t->count; ++i) {
        const FieldInfo& f = t->fields[i];
        std::cout << f.name << '\t' << field_type_name(f.type) << '\t'
                  << number_text(host.read_field(f), f.type) << '\n';
    }
    return 0;
}

// Reads a panel.cfg and lists its windows with the gauges each places.
int list_panel(Host& host, const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::cerr << path << ": cannot read\n";
        return 2;
    }
    std::ostringstream text;
    text << in.rdbuf();
    panel::Error error;
    const auto p = panel::read(text.str(), panel::registry_sizes(host), error);
    if (!p) {
        std::cerr << path << ':' << error.line << ": " << error.message << '\n';
        return 2;
    }
    std::vector<bool> placed(static_cast<std::size_t>(host.gauge_count()), false);
    int total = 0;
    for (const panel::Window& w : p->windows) {
        std::cout << '[' << w.section << "] \"" << w.title << "\" ident " << (w.ident.empty() ? "-" : w.ident)
                  << ' ' << w.width << 'x' << w.height << (w.visible ? " visible" : " hidden") << ", "
                  << w.gauges.size() << " gauges\n";
        for (const panel::Placed& g : w.gauges) {
            std::cout << "  " << g.name << '\t' << g.x << ',' << g.y << ',' << g.w << ',' << g.h << '\n';
            placed[static_cast<std::size_t>(host.gauge_index(g.name))] = true;
            ++total;
        }
    }
    std::cout << p->windows.size() << " windows, " << total << " gauges placed, "
              << std::count(placed.begin(), placed.end(), true) << " of " << host.gauge_count()
              << " gauges of the module\n";
    for (int i = 0; i < host.gauge_count(); ++i)
        if (!placed[static_cast<std::size_t>(i)])
            std::cout << "not placed: " << host.gauge(i)->name << '\n';
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    std::string module = default_module_path();
    if (args.size() >= 2 && args[0] == "--module") {
        module = args[1];
        args.erase(args.begin(), args.begin() + 2);
    }
    if (args.empty())
        return usage();
    Host host(module);
    if (!host.ok()) {
        std::cerr << host.error() << '\n';
        return 2;
    }
    const std::string& cmd = args[0];
    if (cmd == "gauges" && args.size() == 1)
        return list_gauges(host);
    if (cmd == "fields" && args.size() == 1)
        return list_fields(host);
    if (cmd == "elements" && args.size() == 1)
        return list_elements(host);
    if (cmd == "panel" && args.size() == 2)
        return list_panel(host, args[1]);
#if KESTRANE_COCKPIT
    if (cmd == "cockpit") {
        std::vector<const char*> rest;
        for (std::size_t i = 1; i < args.size(); ++i)
            rest.push_back(args[i].c_str());
        cockpit::Options options;
        std::string error;
        if (!cockpit::parse_options(static_cast<int>(rest.size()), rest.data(), options, error)) {
            std::cerr << error << '\n';
            return usage();
        }
        return cockpit::serve(host, options, std::cout, std::cerr);
    }
#endif
    if (cmd == "run") {
        std::size_t first = 1;
        if (args.size() >= 3 && args[1] == "--record-audio") {
            if (!host.record_audio(args[2])) {
                std::cerr << "cannot write " << args[2] << '\n';
                return 2;
            }
            first = 3;
        }
        if (args.size() >= first + 2 && args[first] == "--trace") {
            if (!host.trace_to(args[first + 1])) {
                std::cerr << "cannot write " << args[first + 1] << '\n';
                return 2;
            }
            first += 2;
        }
        if (args.size() > first)
            return run_paths(std::vector<std::string>(args.begin() + first, args.end()), host, std::cout);
    }
    return usage();
}
