#include "host/cockpit/cockpit.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <fstream>
#include <iostream>
#include <mutex>
#include <set>
#include <sstream>
#include <thread>
#include <vector>

#include "host/cockpit/assets.h"
#include "host/cockpit/server.h"
#include "host/cockpit/state.h"
#include "host/host.h"
#include "host/panel/gauge_size.h"
#include "host/scenario.h"

namespace kestrane::host::cockpit {

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kTick = std::chrono::microseconds(1000000 / 18);

std::atomic<bool> g_stop{false};

void on_signal(int) {
    g_stop = true;
}

bool read_file(const std::string& path, std::string& text) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    std::ostringstream s;
    s << in.rdbuf();
    text = s.str();
    return true;
}

bool is_check(CmdKind k) {
    return k >= CmdKind::ExpectField;
}

// The real-time loop: owns the host; the server's threads only queue requests.
class Sim {
public:
    Sim(Host& host, StateTracker& state, const std::vector<int>& placed) : host_(host), state_(state) {
        for (int g : placed)
            placed_.insert(g);
    }

    void queue(Request r) {
        std::lock_guard lock(mutex_);
        inbox_.push_back(std::move(r));
        wake_.notify_one();
    }

    void run(Server& server, double seconds) {
        server_ = &server;
        const auto start = Clock::now();
        auto next = start;
        while (!g_stop) {
            if (seconds > 0 && Clock::now() - start > std::chrono::duration<double>(seconds))
                break;
            drain();
            int cycles = speed_ > 0 ? speed_ : 0;
            if (speed_ == 0) {
                cycles = steps_;
                steps_ = 0;
            }
            if (speed_ == kMaxSpeed) {
                // as many cycles as fit in most of a tick
                const auto until = Clock::now() + kTick * 3 / 4;
                while (Clock::now() < until)
                    for (int i = 0; i < 32; ++i)
                        cycle();
            } else {
                for (int i = 0; i < cycles; ++i)
                    cycle();
            }
            publish();
            next += kTick;
            const auto now = Clock::now();
            if (now > next + std::chrono::seconds(1))
                next = now;  // fell far behind: do not run to catch up
            std::unique_lock lock(mutex_);
            wake_.wait_until(lock, next, [&] { return g_stop.load(); });
        }
    }

private:
    void cycle() {
        if (host_.holding() && !fresh_press_)
            host_.repeat_held();
        fresh_press_ = false;
        host_.run(1);
        ++cycles_;
        state_.collect();
    }

    void publish() {
        json d = state_.diff();
        if (d.is_null() && cycles_ == published_cycles_ && speed_ == published_speed_)
            return;
        if (d.is_null())
            d = json{{"t", "diff"}};
        d["cycle"] = cycles_;
        d["speed"] = speed_;
        published_cycles_ = cycles_;
        published_speed_ = speed_;
        server_->broadcast(d.dump());
    }

    bool mouse_target(const Request& r, GaugeHeader*& g) {
        if (placed_.count(r.gauge) == 0)
            return false;
        g = host_.gauge(r.gauge);
        return g != nullptr && host_.installed(g);
    }

    void apply(const Request& r) {
        GaugeHeader* g = nullptr;
        switch (r.kind) {
            case Request::Hello: {
                json full = state_.full();
                full["cycle"] = cycles_;
                full["speed"] = speed_;
                server_->send(r.conn, full.dump());
                break;
            }
            case Request::Bye:
                if (holder_ == r.conn) {
                    host_.release();
                    holder_ = nullptr;
                }
                break;
            case Request::Down:
                if (mouse_target(r, g) && host_.press(g, r.x, r.y)) {
                    holder_ = r.conn;
                    fresh_press_ = true;
                }
                break;
            case Request::Up:
                host_.release();
                holder_ = nullptr;
                break;
            case Request::Right:
                if (mouse_target(r, g))
                    host_.click(g, r.x, r.y, kMouseRight);
                break;
            case Request::Move:
                if (mouse_target(r, g))
                    host_.click(g, r.x, r.y, kMouseMove);
                break;
            case Request::Window:
                state_.set_window(r.ident, r.open);
                break;
            case Request::Speed:
                speed_ = r.speed;
                break;
            case Request::Step:
                if (speed_ == 0 && steps_ < 64)
                    ++steps_;
                break;
        }
    }

    void drain() {
        std::vector<Request> batch;
        {
            std::lock_guard lock(mutex_);
            batch.swap(inbox_);
        }
        for (const Request& r : batch)
            apply(r);
        if (!batch.empty())
            state_.collect();  // what the handlers played and sent
    }

    Host& host_;
    StateTracker& state_;
    Server* server_ = nullptr;
    std::set<int> placed_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::vector<Request> inbox_;
    int speed_ = 1, published_speed_ = 1;
    int steps_ = 0;
    bool fresh_press_ = false;
    const void* holder_ = nullptr;
    std::uint64_t cycles_ = 0, published_cycles_ = 0;
};

// Runs a script's commands, checks skipped, on a freshly loaded module.
bool run_setup(Host& host, const std::string& path, std::ostream& err, bool& aircraft_chosen) {
    std::string text;
    if (!read_script_text(path, text)) {
        err << path << ": cannot read\n";
        return false;
    }
    Script script;
    ParseError pe;
    if (!parse_script(path, text, host, script, pe)) {
        err << pe.file << ':' << pe.line << ": " << pe.message << '\n';
        return false;
    }
    RunTotals totals;
    Runner runner(host, totals, err);
    if (!runner.begin(path))
        return false;
    for (const Command& c : script.commands) {
        if (is_check(c.kind))
            continue;
        if (c.kind == CmdKind::AircraftOff || c.kind == CmdKind::AircraftDefault)
            aircraft_chosen = true;
        runner.execute(c);
    }
    return true;
}

}  // namespace

bool parse_options(int argc, const char* const* argv, Options& o, std::string& error) {
    o.panel = KESTRANE_PANEL_CFG;
    o.page_dir = KESTRANE_COCKPIT_PAGE;
    for (int i = 0; i < argc; ++i) {
        const std::string a = argv[i];
        const bool has_value = i + 1 < argc;
        if (a == "--panel" && has_value) {
            o.panel = argv[++i];
        } else if (a == "--script" && has_value) {
            o.script = argv[++i];
        } else if (a == "--page" && has_value) {
            o.page_dir = argv[++i];
        } else if (a == "--listen" && has_value) {
            o.listen = argv[++i];
        } else if ((a == "--port" || a == "--seconds") && has_value) {
            const std::string v = argv[++i];
            char* end = nullptr;
            const double n = std::strtod(v.c_str(), &end);
            if (v.empty() || *end != '\0' || !(n >= 0) || n > (a == "--port" ? 65535 : 1e7) ||
                (a == "--port" && n != static_cast<int>(n))) {
                error = "bad value for " + a + ": " + v;
                return false;
            }
            if (a == "--port")
                o.port = static_cast<int>(n);
            else
                o.seconds = n;
        } else {
            error = "unknown cockpit argument " + a;
            return false;
        }
    }
    return true;
}

int serve(Host& host, const Options& o, std::ostream& out, std::ostream& err) {
    std::signal(SIGINT, on_signal);
    std::signal(SIGTERM, on_signal);
    bool aircraft_chosen = false;
    if (!o.script.empty() && !run_setup(host, o.script, err, aircraft_chosen))
        return 2;
    std::string text;
    if (!read_file(o.panel, text)) {
        err << o.panel << ": cannot read\n";
        return 2;
    }
    panel::Error pe;
    const auto p = panel::read(text, panel::registry_sizes(host), pe);
    if (!p) {
        err << o.panel << ':' << pe.line << ": " << pe.message << '\n';
        return 2;
    }
    // Gauges in the order the panel places them, as the simulator loads them.
    std::vector<int> placed;
    std::vector<std::pair<std::string, bool>> symbolic;
    for (const panel::Window& w : p->windows) {
        for (const panel::Placed& g : w.gauges) {
            GaugeHeader* h = host.gauge(g.name);
            if (!host.installed(h))
                host.install(h);
            placed.push_back(host.gauge_index(g.name));
        }
        const bool numeric = !w.ident.empty() &&
                             w.ident.find_first_not_of("0123456789") == std::string::npos &&
                             w.ident.size() <= 9;
        if (numeric && w.visible)
            host.set_window(static_cast<u32>(std::stoul(w.ident)), true);
        else if (!numeric)
            symbolic.emplace_back(w.ident.empty() ? w.section : w.ident, w.visible);
    }
    if (!aircraft_chosen)
        host.set_aircraft(true);

    Assets assets;
    std::string error;
    if (!assets.load_page(o.page_dir, error)) {
        err << error << '\n';
        return 2;
    }
    assets.load_module(host, *p);
    StateTracker state(host, std::move(symbolic));
    state.collect();
    Sim sim(host, state, placed);
    Server server(assets, [&](Request r) { sim.queue(std::move(r)); });
    if (!server.start(o.listen, o.port, error)) {
        err << error << '\n';
        return 2;
    }
    out << "cockpit at http://" << (o.listen == "0.0.0.0" ? "127.0.0.1" : o.listen) << ':' << server.port()
        << "/" << std::endl;
    sim.run(server, o.seconds);
    server.stop();
    return 0;
}

}  // namespace kestrane::host::cockpit
