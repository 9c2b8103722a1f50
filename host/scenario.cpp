#include "host/scenario.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>
#include <string_view>

#include "host/scenario_text.h"

namespace kestrane::host {

namespace {

using namespace script_text;

bool is_step(CmdKind k) {
    switch (k) {
        case CmdKind::Run:
        case CmdKind::Click:
        case CmdKind::RClick:
        case CmdKind::Move:
        case CmdKind::Hold:
            return true;
        default:
            return false;
    }
}

// "66463 x3, 65568" for a failure message.
std::string event_summary(const std::vector<KeyEvent>& events) {
    std::vector<std::pair<u32, int>> counts;
    for (const KeyEvent& e : events) {
        auto it =
            std::find_if(counts.begin(), counts.end(), [&](const auto& p) { return p.first == e.event; });
        if (it == counts.end())
            counts.push_back({e.event, 1});
        else
            ++it->second;
    }
    std::string s;
    for (std::size_t i = 0; i < counts.size() && i < 8; ++i) {
        s += (i ? ", " : "") + fmt(counts[i].first);
        if (counts[i].second > 1)
            s += " x" + fmt(counts[i].second);
    }
    if (counts.size() > 8)
        s += ", ...";
    return s;
}

}  // namespace

Runner::Runner(Host& host, RunTotals& totals, std::ostream& out) : host_(host), totals_(totals), out_(out) {}

bool Runner::begin(const std::string& file) {
    file_ = file;
    if (host_.reload())
        return true;
    out_ << file << ":1: " << host_.error() << "\n";
    ++totals_.failed;
    return false;
}

void Runner::fail(const Command& c, const std::string& expected, const std::string& got) {
    ++totals_.failed;
    out_ << file_ << ":" << c.line << ": expected " << expected << ", got " << got << "\n";
}

int Runner::count_event(u32 id, const double* value) const {
    int n = 0;
    for (const KeyEvent& e : host_.events())
        if (e.event == id && (value == nullptr || e.value == *value))
            ++n;
    return n;
}

void Runner::execute(const Command& c) {
    if (is_step(c.kind))
        host_.begin_step();
    GaugeHeader* g = c.gauges.empty() ? nullptr : host_.gauge(c.gauges[0]);
    // Messages are built only for failed checks, so that passing checks cost nothing.
    bool pass = true;
    switch (c.kind) {
        case CmdKind::GaugesAll:
            host_.install_all();
            return;
        case CmdKind::Gauges:
            for (int i : c.gauges)
                host_.install(host_.gauge(i));
            return;
        case CmdKind::Remove:
            host_.remove(g);
            return;
        case CmdKind::AircraftOff:
            host_.set_aircraft(false);
            return;
        case CmdKind::AircraftDefault:
            host_.set_aircraft(true);
            return;
        case CmdKind::Trace:
            host_.trace_items(c.trace);
            return;
        case CmdKind::Token:
            host_.set_token(c.id, c.value);
            return;
        case CmdKind::TokenBcd:
            host_.set_token_bcd(c.id, static_cast<u32>(c.value));
            return;
        case CmdKind::Named:
            host_.set_named(c.name, c.value);
            return;
        case CmdKind::Calc:
            host_.set_calc(c.name, c.value);
            return;
        case CmdKind::Set:
            host_.set_field(c.name, c.value);
            return;
        case CmdKind::Run:
            host_.run(c.n);
            return;
        case CmdKind::Click:
            host_.click(g, c.x, c.y, kMouseLeft);
            return;
        case CmdKind::RClick:
            host_.click(g, c.x, c.y, kMouseRight);
            return;
        case CmdKind::Move:
            host_.click(g, c.x, c.y, kMouseMove);
            return;
        case CmdKind::Hold:
            host_.hold(g, c.x, c.y, c.n);
            return;
        case CmdKind::ExpectField:
        case CmdKind::ExpectToken:
        case CmdKind::ExpectNamed: {
            double v = c.kind == CmdKind::ExpectField   ? host_.field_value(c.name).value_or(0.0)
                       : c.kind == CmdKind::ExpectToken ? host_.token(c.id)
                                                        : host_.named(c.name).value_or(0.0);
            pass = compare(v, c.op, c.value, c.tolerance);
            if (!pass) {
                std::string what = c.kind == CmdKind::ExpectField   ? c.name
                                   : c.kind == CmdKind::ExpectToken ? "token " + fmt(c.id)
                                                                    : "named \"" + c.name + "\"";
                std::string expected = what + " " + op_text(c.op) + " " + fmt(c.value);
                if (c.op == CmpOp::Near)
                    expected += " +/- " + fmt(c.tolerance);
                fail(c, expected, fmt(v));
            }
            break;
        }
        case CmdKind::ExpectEvent:
            pass = count_event(c.id, nullptr) > 0;
            if (!pass)
                fail(c, "event " + fmt(c.id), "none");
            break;
        case CmdKind::ExpectEventValue:
            pass = count_event(c.id, &c.value) > 0;
            if (!pass) {
                std::string values;
                for (const KeyEvent& e : host_.events())
                    if (e.event == c.id)
                        values += (values.empty() ? "" : ", ") + fmt(e.value);
                fail(c, "event " + fmt(c.id) + " value " + fmt(c.value),
                     values.empty() ? std::string("no such event") : "values " + values);
            }
            break;
        case CmdKind::ExpectEventCount: {
            int n = count_event(c.id, nullptr);
            pass = n == c.n;
            if (!pass)
                fail(c, "event " + fmt(c.id) + " count " + fmt(c.n), fmt(n));
            break;
        }
        case CmdKind::ExpectNoEvent: {
            int n = count_event(c.id, nullptr);
            pass = n == 0;
            if (!pass)
                fail(c, "no event " + fmt(c.id), fmt(n) + " of it");
            break;
        }
        case CmdKind::ExpectNoEvents:
            pass = host_.events().empty();
            if (!pass)
                fail(c, "no events", event_summary(host_.events()));
            break;
        case CmdKind::ExpectSound:
            pass = check_sound(c);
            break;
        case CmdKind::ExpectShown:
        case CmdKind::ExpectHidden: {
            Element* e = Host::element(g, c.n, c.branch);
            bool shown = e != nullptr && (e->flags & kHidden) == 0;
            bool want = c.kind == CmdKind::ExpectShown;
            pass = shown == want;
            if (!pass)
                fail(c,
                     element_text(c.n, c.branch) + " of \"" + g->name + "\" " + (want ? "shown" : "hidden"),
                     shown ? "shown" : "hidden");
            break;
        }
        case CmdKind::ExpectValue:
        case CmdKind::ExpectText:
            pass = check_drawn(c, g);
            break;
        case CmdKind::ExpectWindowOpen:
        case CmdKind::ExpectWindowClosed: {
            bool open = host_.window_open(c.id);
            bool want = c.kind == CmdKind::ExpectWindowOpen;
            pass = open == want;
            if (!pass)
                fail(c, "window " + fmt(c.id) + (want ? " open" : " closed"), open ? "open" : "closed");
            break;
        }
    }
    if (pass)
        ++totals_.passed;
}

bool Runner::check_drawn(const Command& c, GaugeHeader* g) {
    static const char* const axes[] = {" x", " y", " rotation"};
    const Element* e = Host::element(g, c.n, c.branch);
    const Drawn* d = host_.drawn(g, e);
    const bool axis = c.kind == CmdKind::ExpectValue && e->kind != kNeedle;
    std::string what = (c.kind == CmdKind::ExpectText ? "text of " : "value of ") +
                       element_text(c.n, c.branch) + (axis ? axes[c.axis] : "") + " of \"" + g->name + "\"";
    const u8 bit =
        c.kind == CmdKind::ExpectText ? static_cast<u8>(Drawn::kText) : static_cast<u8>(1u << c.axis);
    if (d == nullptr || (d->have & bit) == 0) {
        fail(c, what, "not drawn since the gauge was installed");
        return false;
    }
    if (c.kind == CmdKind::ExpectText) {
        if (d->text == c.name)
            return true;
        fail(c, what + " \"" + c.name + "\"", "\"" + d->text + "\"");
        return false;
    }
    const double v = d->value[c.axis];
    if (compare(v, c.op, c.value, c.tolerance))
        return true;
    std::string expected = what + " " + op_text(c.op) + " " + fmt(c.value);
    if (c.op == CmpOp::Near)
        expected += " +/- " + fmt(c.tolerance);
    fail(c, expected, fmt(v));
    return false;
}

bool Runner::check_sound(const Command& c) {
    int once = 0, looping = 0, stops = 0, silent_stops = 0;
    for (const SoundEvent& e : host_.sound_device().log()) {
        if (e.buffer->name != c.name)
            continue;
        if (e.op == SoundOp::Play)
            ++((e.flags & DSBPLAY_LOOPING) ? looping : once);
        if (e.op == SoundOp::Stop)
            ++(e.flags ? stops : silent_stops);  // stopping a silent buffer is not heard
    }
    const SoundBuffer* now = host_.sound(c.name);
    auto what = [&](const std::string& rest) { return "sound \"" + c.name + "\" " + rest; };
    switch (c.sound) {
        case SoundCheck::Played:
            if (once > 0)
                return true;
            fail(c, what("played"), looping ? "only looping" : "not played");
            return false;
        case SoundCheck::PlayedCount:
            if (once == c.n)
                return true;
            fail(c, what("played count " + fmt(c.n)), fmt(once));
            return false;
        case SoundCheck::Looping:
            if (looping > 0)
                return true;
            fail(c, what("looping"), once ? "only played once" : "not started");
            return false;
        case SoundCheck::Stopped:
            if (stops > 0)
                return true;
            fail(c, what("stopped"),
                 silent_stops ? "only stopped while not playing, which is not counted" : "not stopped");
            return false;
        case SoundCheck::Silent:
            if (once + looping + stops == 0)
                return true;
            fail(c, what("silent"),
                 fmt(once) + " played, " + fmt(looping) + " looping, " + fmt(stops) + " stopped");
            return false;
        case SoundCheck::Playing:
        case SoundCheck::Idle: {
            bool playing = now != nullptr && now->playing;
            bool want = c.sound == SoundCheck::Playing;
            if (playing == want)
                return true;
            fail(c, what(want ? "playing" : "idle"),
                 now == nullptr ? "not loaded" : (playing ? "playing" : "idle"));
            return false;
        }
        case SoundCheck::Volume:
            if (now != nullptr && now->volume == c.value)
                return true;
            fail(c, what("volume " + fmt(c.value)), now == nullptr ? "not loaded" : fmt(now->volume));
            return false;
    }
    return false;
}

void run_script(const Script& script, Host& host, RunTotals& totals, std::ostream& out) {
    Runner runner(host, totals, out);
    if (!runner.begin(script.file))
        return;
    for (const Command& c : script.commands)
        runner.execute(c);
}

bool read_script_text(const std::string& path, std::string& text) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    // Read one byte past the limit at most: the parser reports an over-long
    // script, and endless files (/dev/zero) end here.
    text.assign(kMaxScriptBytes + 1, '\0');
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(in.gcount()));
    return !in.bad();
}

int run_paths(const std::vector<std::string>& paths, Host& host, std::ostream& out) {
    namespace fs = std::filesystem;
    bool bad = false;
    std::vector<std::string> files;
    for (const std::string& p : paths) {
        std::error_code ec;
        if (fs::is_directory(p, ec)) {
            std::vector<std::string> found;
            for (const auto& entry : fs::directory_iterator(p, ec))
                if (entry.path().extension() == ".scn")
                    found.push_back(entry.path().string());
            std::sort(found.begin(), found.end());
            files.insert(files.end(), found.begin(), found.end());
        } else {
            files.push_back(p);
        }
    }
    RunTotals totals;
    for (const std::string& file : files) {
        std::string text;
        if (!read_script_text(file, text)) {
            out << file << ":0: cannot read the script\n";
            bad = true;
            continue;
        }
        Script script;
        ParseError error;
        if (!parse_script(file, text, host, script, error)) {
            out << error.file << ":" << error.line << ": " << error.message << "\n";
            bad = true;
            continue;
        }
        run_script(script, host, totals, out);
    }
    out << totals.passed << " passed, " << totals.failed << " failed\n";
    if (bad)
        return 2;
    return totals.failed > 0 ? 1 : 0;
}

}  // namespace kestrane::host