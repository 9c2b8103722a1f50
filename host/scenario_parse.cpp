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

#include "host/scenario.h"
#include "host/scenario_text.h"

namespace kestrane::host {

namespace {

using namespace script_text;

struct Token {
    std::string text;
    bool quoted = false;
};

struct Fault {
    std::string message;
};

// Splits one line into words and quoted strings; '#' outside quotes ends it.
bool tokenize(std::string_view line, std::vector<Token>& out, std::string& error) {
    std::size_t i = 0;
    while (i < line.size()) {
        char c = line[i];
        if (c == ' ' || c == '\t' || c == '\r') {
            ++i;
        } else if (c == '#') {
            break;
        } else if (c == '"') {
            std::size_t end = line.find('"', i + 1);
            if (end == std::string_view::npos) {
                error = "unterminated string";
                return false;
            }
            out.push_back({std::string(line.substr(i + 1, end - i - 1)), true});
            i = end + 1;
        } else {
            std::size_t end = i;
            while (end < line.size() && line[end] != ' ' && line[end] != '\t' && line[end] != '\r' &&
                   line[end] != '#' && line[end] != '"')
                ++end;
            out.push_back({std::string(line.substr(i, end - i)), false});
            i = end;
        }
    }
    return true;
}

// Decimal (-12, 45.5, 1e-3) or hexadecimal (0x102C1) numbers.
bool parse_number(const std::string& s, double& v) {
    if (s.empty())
        return false;
    std::size_t i = 0;
    bool negative = false;
    if (s[0] == '-' || s[0] == '+') {
        negative = s[0] == '-';
        i = 1;
    }
    if (s.size() > i + 2 && s[i] == '0' && (s[i + 1] == 'x' || s[i + 1] == 'X')) {
        unsigned long long n = 0;
        for (std::size_t k = i + 2; k < s.size(); ++k) {
            char c = s[k];
            int d = (c >= '0' && c <= '9')   ? c - '0'
                    : (c >= 'a' && c <= 'f') ? c - 'a' + 10
                    : (c >= 'A' && c <= 'F') ? c - 'A' + 10
                                             : -1;
            if (d < 0 || n > (~0ull >> 4))
                return false;
            n = n * 16 + static_cast<unsigned>(d);
        }
        v = negative ? -static_cast<double>(n) : static_cast<double>(n);
        return true;
    }
    bool digits = false;
    for (std::size_t k = i; k < s.size(); ++k) {
        char c = s[k];
        if (c >= '0' && c <= '9')
            digits = true;
        else if (c != '.' && c != 'e' && c != 'E' && c != '-' && c != '+')
            return false;
    }
    if (!digits)
        return false;
    errno = 0;
    char* end = nullptr;
    v = std::strtod(s.c_str(), &end);
    if (end != s.c_str() + s.size() || !std::isfinite(v))
        return false;
    return true;
}

bool parse_op(const std::string& s, CmpOp& op) {
    static const std::pair<std::string_view, CmpOp> ops[] = {
        {"==", CmpOp::Eq}, {"!=", CmpOp::Ne}, {"<", CmpOp::Lt},   {"<=", CmpOp::Le},
        {">", CmpOp::Gt},  {">=", CmpOp::Ge}, {"~=", CmpOp::Near}};
    for (const auto& [text, o] : ops)
        if (s == text) {
            op = o;
            return true;
        }
    return false;
}

class Line {
public:
    Line(std::vector<Token> t, const Host& host) : t_(std::move(t)), host_(host) {}

    bool ok() const { return fault_.empty(); }
    const std::string& fault() const { return fault_; }
    void fail(std::string m) {
        if (fault_.empty())
            fault_ = std::move(m);
    }
    bool more() const { return at_ < t_.size(); }
    const Token* peek() const { return more() ? &t_[at_] : nullptr; }

    std::string word(const char* what) {
        if (!more() || t_[at_].quoted) {
            fail(std::string("expected ") + what);
            return {};
        }
        return t_[at_++].text;
    }
    bool keyword(const char* k) {
        if (more() && !t_[at_].quoted && t_[at_].text == k) {
            ++at_;
            return true;
        }
        return false;
    }
    void expect_word(const char* k) {
        if (!keyword(k))
            fail(std::string("expected '") + k + "'");
    }
    std::string quoted(const char* what) {
        if (!more() || !t_[at_].quoted) {
            fail(std::string("expected ") + what + " in double quotes");
            return {};
        }
        return t_[at_++].text;
    }
    double number(const char* what) {
        if (!more()) {
            fail(std::string("expected ") + what);
            return 0;
        }
        const Token& tk = t_[at_++];
        double v = 0;
        if (tk.quoted || !parse_number(tk.text, v)) {
            fail("bad number '" + tk.text + "' for " + what);
            return 0;
        }
        return v;
    }
    // A whole number within [lo, hi].
    // After an earlier fault on the line it is 0, so that callers may convert it.
    double whole(const char* what, double lo, double hi) {
        double v = number(what);
        if (!ok())
            return 0;
        if (v != std::trunc(v) || v < lo || v > hi) {
            fail(std::string("bad number '") + fmt(v) + "' for " + what + ": expected a whole number from " +
                 fmt(lo) + " to " + fmt(hi));
            return 0;
        }
        return v;
    }
    int gauge() {
        std::string g = quoted("a gauge name");
        if (!ok())
            return -1;
        int i = host_.gauge_index(g);
        if (i < 0)
            fail("unknown gauge \"" + g + "\"");
        return i;
    }
    void end() {
        if (ok() && more())
            fail("unexpected '" + t_[at_].text + "' at the end of the line");
    }

private:
    std::vector<Token> t_;
    std::size_t at_ = 0;
    const Host& host_;
    std::string fault_;
};

constexpr double kU32Max = 4294967295.0;
// One command runs at most about 15 simulated hours: a slip of the keyboard
// must not hold a test run for hours of real time.
constexpr double kCyclesMax = static_cast<double>(kMaxCycles);
constexpr double kIntMax = 2147483647.0;

const char* kind_name(u32 kind) {
    switch (kind) {
        case kStaticImage:
            return "a static image";
        case kNeedle:
            return "a needle";
        case kString:
            return "a string";
        case kSlider:
            return "a slider";
        case kIcon:
            return "an icon";
        case kMovingImage:
            return "a moving image";
        case kSprite:
            return "a sprite";
    }
    return "an element of unknown kind";
}

Element* element_ref(Line& l, const Host& host, int g, Command& c) {
    std::string ref = l.word("an element number (N or N.K)");
    if (!l.ok() || g < 0)
        return nullptr;
    std::size_t dot = ref.find('.');
    double n = 0, k = 0;
    bool good = parse_number(ref.substr(0, dot), n) && n == std::trunc(n) && n >= 0 && n <= kIntMax;
    if (good && dot != std::string::npos)
        good = parse_number(ref.substr(dot + 1), k) && k == std::trunc(k) && k >= 1 && k <= kIntMax &&
               ref.find_first_not_of("0123456789", dot + 1) == std::string::npos;
    if (!good || ref.find_first_not_of("0123456789.") != std::string::npos) {
        l.fail("bad element '" + ref + "': expected N or N.K (branches count from 1)");
        return nullptr;
    }
    c.n = static_cast<int>(n);
    c.branch = static_cast<int>(k);
    GaugeHeader* gh = host.gauge(g);
    Element* e = Host::element(gh, c.n, c.branch);
    if (e == nullptr) {
        if (c.branch > 0 && Host::element(gh, c.n) != nullptr)
            l.fail("element e" + fmt(c.n) + " of \"" + gh->name + "\" has no branch " + fmt(c.branch));
        else
            l.fail("gauge \"" + std::string(gh->name) + "\" has no element e" + fmt(c.n));
    }
    return e;
}

// expect value "G" N [x|y|rotation] OP V, expect text "G" N "TEXT": the
// element must have the callback that is checked.
void parse_drawn(Line& l, Command& c, const Host& host, bool text) {
    int g = l.gauge();
    c.gauges.push_back(g);
    Element* e = element_ref(l, host, g, c);
    if (!l.ok())
        return;
    const u8 have = element_callbacks(e);
    const std::string what =
        element_text(c.n, c.branch) + " of \"" + host.gauge(g)->name + "\" is " + kind_name(e->kind);
    if (text) {
        c.kind = CmdKind::ExpectText;
        if (e->kind != kString)
            l.fail(what + ", not a string: check it with expect value or expect shown");
        else if ((have & Drawn::kText) == 0)
            l.fail(what + " without a string callback");
        else
            c.name = l.quoted("the text");
        return;
    }
    c.kind = CmdKind::ExpectValue;
    static const char* const axes[] = {"x", "y", "rotation"};
    int axis = -1;
    for (int i = 0; i < 3 && axis < 0; ++i)
        if (l.keyword(axes[i]))
            axis = i;
    switch (e->kind) {
        case kNeedle:
            if (axis >= 0)
                l.fail(what + ": its value has no axis, write expect value \"G\" N OP V");
            else if ((have & Drawn::kX) == 0)
                l.fail(what + " without a value callback or source token");
            axis = 0;
            break;
        case kSlider:
        case kMovingImage:
        case kSprite:
            if (axis < 0)
                l.fail(what + ": name the callback to check, x or y" +
                       std::string(e->kind == kSprite ? " or rotation" : ""));
            else if (axis == 2 && e->kind != kSprite)
                l.fail(what + ": only sprites have a rotation");
            else if ((have & (1u << axis)) == 0)
                l.fail(what + " without a " + axes[axis] + " callback");
            break;
        case kString:
            l.fail(what + ": check its text with expect text");
            break;
        default:
            l.fail(what + ", which has no value callback");
            break;
    }
    c.axis = axis < 0 ? 0 : axis;
}

void parse_expect(Line& l, Command& c, const Host& host) {
    if (l.keyword("no")) {
        if (l.keyword("events")) {
            c.kind = CmdKind::ExpectNoEvents;
        } else if (l.keyword("event")) {
            c.kind = CmdKind::ExpectNoEvent;
            c.id = static_cast<u32>(l.whole("an event number", 0, kU32Max));
        } else {
            l.fail("expected 'event' or 'events' after 'expect no'");
        }
        return;
    }
    auto value_check = [&](CmdKind kind) {
        c.kind = kind;
        std::string op = l.word("a comparison (== != < <= > >= ~=)");
        if (!l.ok())
            return;
        if (!parse_op(op, c.op)) {
            l.fail("unknown comparison '" + op + "'");
            return;
        }
        c.value = l.number("the value");
        if (c.op == CmpOp::Near) {
            c.tolerance = l.number("the tolerance");
            if (l.ok() && c.tolerance < 0)
                l.fail("bad number '" + fmt(c.tolerance) + "' for the tolerance: it cannot be negative");
        }
    };
    if (l.keyword("value")) {
        parse_drawn(l, c, host, false);
        if (l.ok())
            value_check(CmdKind::ExpectValue);
    } else if (l.keyword("text")) {
        parse_drawn(l, c, host, true);
    } else if (l.keyword("token")) {
        c.id = static_cast<u32>(l.whole("a token number", 0, kU32Max));
        value_check(CmdKind::ExpectToken);
    } else if (l.keyword("named")) {
        c.name = l.quoted("a named-variable name");
        value_check(CmdKind::ExpectNamed);
    } else if (l.keyword("event")) {
        c.id = static_cast<u32>(l.whole("an event number", 0, kU32Max));
        c.kind = CmdKind::ExpectEvent;
        if (l.keyword("value")) {
            c.kind = CmdKind::ExpectEventValue;
            // a negative value stands for the same 32 bits signed
            c.value = l.whole("an event value", -2147483648.0, kU32Max);
            if (c.value < 0)
                c.value += 4294967296.0;
        } else if (l.keyword("count")) {
            c.kind = CmdKind::ExpectEventCount;
            c.n = static_cast<int>(l.whole("a count", 0, kIntMax));
        }
    } else if (l.keyword("sound")) {
        c.kind = CmdKind::ExpectSound;
        c.name = l.quoted("a sound name");
        if (!l.ok())
            return;
        if (!host.has_sound(c.name)) {
            l.fail("unknown sound \"" + c.name + "\"");
            return;
        }
        if (l.keyword("played")) {
            c.sound = SoundCheck::Played;
            if (l.keyword("count")) {
                c.sound = SoundCheck::PlayedCount;
                c.n = static_cast<int>(l.whole("a count", 0, kIntMax));
            }
        } else if (l.keyword("looping")) {
            c.sound = SoundCheck::Looping;
        } else if (l.keyword("stopped")) {
            c.sound = SoundCheck::Stopped;
        } else if (l.keyword("silent")) {
            c.sound = SoundCheck::Silent;
        } else if (l.keyword("playing")) {
            c.sound = SoundCheck::Playing;
        } else if (l.keyword("idle")) {
            c.sound = SoundCheck::Idle;
        } else if (l.keyword("volume")) {
            c.sound = SoundCheck::Volume;
            c.value = l.number("a volume");
        } else {
            l.fail("expected played, looping, stopped, silent, playing, idle or volume");
        }
    } else if (l.keyword("window")) {
        c.id = static_cast<u32>(l.whole("a window ident", 0, kU32Max));
        if (l.keyword("open"))
            c.kind = CmdKind::ExpectWindowOpen;
        else if (l.keyword("closed"))
            c.kind = CmdKind::ExpectWindowClosed;
        else
            l.fail("expected 'open' or 'closed'");
    } else {
        std::string name = l.word("a state field, token, named, event, sound, shown, hidden or window");
        if (!l.ok())
            return;
        if (host.field(name) == nullptr) {
            l.fail("unknown field '" + name + "'");
            return;
        }
        c.name = name;
        value_check(CmdKind::ExpectField);
    }
}

bool parse_line(const std::vector<Token>& tokens, Command& c, const Host& host, std::vector<int>& installed,
                std::string& error) {
    Line l(tokens, host);
    std::string cmd = l.word("a command");
    if (cmd == "gauges") {
        if (l.keyword("all")) {
            c.kind = CmdKind::GaugesAll;
            for (int i = 0; i < host.gauge_count(); ++i)
                if (std::find(installed.begin(), installed.end(), i) == installed.end())
                    installed.push_back(i);
        } else {
            c.kind = CmdKind::Gauges;
            if (!l.more())
                l.fail("expected gauge names in double quotes");
            while (l.ok() && l.more()) {
                int g = l.gauge();
                if (!l.ok())
                    break;
                c.gauges.push_back(g);
                if (std::find(installed.begin(), installed.end(), g) == installed.end())
                    installed.push_back(g);
            }
        }
    } else if (cmd == "remove") {
        c.kind = CmdKind::Remove;
        int g = l.gauge();
        if (l.ok()) {
            auto it = std::find(installed.begin(), installed.end(), g);
            if (it == installed.end())
                l.fail("gauge \"" + std::string(host.gauge(g)->name) + "\" is not installed");
            else
                installed.erase(it);
            c.gauges.push_back(g);
        }
    } else if (cmd == "aircraft") {
        if (l.keyword("off")) {
            c.kind = CmdKind::AircraftOff;
        } else if (l.keyword("default")) {
            c.kind = CmdKind::AircraftDefault;
        } else {
            l.fail("expected 'off' or 'default' after 'aircraft'");
        }
    } else if (cmd == "trace") {
        c.kind = CmdKind::Trace;
        if (!l.more())
            l.fail("expected fields, 'token N' or 'named \"NAME\"' to trace");
        while (l.ok() && l.more()) {
            TraceItem t;
            if (l.keyword("token")) {
                t.kind = TraceItem::Token;
                t.id = static_cast<u32>(l.whole("a token number", 0, kU32Max));
            } else if (l.keyword("named")) {
                t.kind = TraceItem::Named;
                t.name = l.quoted("a named-variable name");
            } else {
                t.name = l.word("a state field");
                if (l.ok() && host.field(t.name) == nullptr)
                    l.fail("unknown field '" + t.name + "'");
            }
            c.trace.push_back(std::move(t));
        }
    } else if (cmd == "token") {
        c.id = static_cast<u32>(l.whole("a token number", 0, kU32Max));
        l.expect_word("=");
        if (l.keyword("bcd")) {
            c.kind = CmdKind::TokenBcd;
            c.value = l.whole("a 32-bit whole number", 0, kU32Max);
        } else {
            c.kind = CmdKind::Token;
            c.value = l.number("the token value");
        }
    } else if (cmd == "named") {
        c.kind = CmdKind::Named;
        c.name = l.quoted("a named-variable name");
        l.expect_word("=");
        c.value = l.number("the value");
    } else if (cmd == "calc") {
        c.kind = CmdKind::Calc;
        c.name = l.quoted("a calculator expression");
        l.expect_word("=");
        c.value = l.number("the value");
    } else if (cmd == "set") {
        c.kind = CmdKind::Set;
        c.name = l.word("a state field");
        if (l.ok() && host.field(c.name) == nullptr)
            l.fail("unknown field '" + c.name + "'");
        l.expect_word("=");
        c.value = l.number("the value");
    } else if (cmd == "run") {
        c.kind = CmdKind::Run;
        c.n = static_cast<int>(l.whole("a cycle count", 0, kCyclesMax));
    } else if (cmd == "click" || cmd == "rclick" || cmd == "move" || cmd == "hold") {
        c.kind = cmd == "click"    ? CmdKind::Click
                 : cmd == "rclick" ? CmdKind::RClick
                 : cmd == "move"   ? CmdKind::Move
                                   : CmdKind::Hold;
        int g = l.gauge();
        c.gauges.push_back(g);
        c.x = static_cast<int>(l.whole("X", -kIntMax, kIntMax));
        c.y = static_cast<int>(l.whole("Y", -kIntMax, kIntMax));
        if (c.kind == CmdKind::Hold)
            c.n = static_cast<int>(l.whole("a cycle count", 1, kCyclesMax));
        if (l.ok()) {
            u32 flags = c.kind == CmdKind::RClick ? kMouseRight
                        : c.kind == CmdKind::Move ? kMouseMove
                                                  : kMouseLeft;
            if (Host::hit(host.gauge(g), c.x, c.y, flags) == nullptr)
                l.fail(cmd + " at (" + fmt(c.x) + ", " + fmt(c.y) + ") hits no mouse area of \"" +
                       host.gauge(g)->name + "\"");
        }
    } else if (cmd == "expect") {
        if (l.peek() && !l.peek()->quoted && (l.peek()->text == "shown" || l.peek()->text == "hidden")) {
            c.kind = l.peek()->text == "shown" ? CmdKind::ExpectShown : CmdKind::ExpectHidden;
            l.word("shown or hidden");
            int g = l.gauge();
            c.gauges.push_back(g);
            element_ref(l, host, g, c);
        } else {
            parse_expect(l, c, host);
        }
    } else if (l.ok()) {
        l.fail("unknown command '" + cmd + "'");
    }
    l.end();
    if (!l.ok())
        error = l.fault();
    return l.ok();
}

}  // namespace

bool parse_script(const std::string& file, const std::string& text, const Host& host, Script& script,
                  ParseError& error) {
    script.file = file;
    script.commands.clear();
    if (text.size() > kMaxScriptBytes) {
        error = {file, 1 + static_cast<int>(std::count(text.begin(), text.begin() + kMaxScriptBytes, '\n')),
                 "script longer than " + std::to_string(kMaxScriptBytes) + " bytes"};
        return false;
    }
    std::vector<int> installed;
    std::istringstream in(text);
    std::string raw;
    int line_no = 0;
    while (std::getline(in, raw)) {
        ++line_no;
        if (raw.size() > kMaxLineBytes) {
            error = {file, line_no, "line longer than " + std::to_string(kMaxLineBytes) + " characters"};
            return false;
        }
        std::vector<Token> tokens;
        std::string message;
        if (!tokenize(raw, tokens, message)) {
            error = {file, line_no, message};
            return false;
        }
        if (tokens.empty())
            continue;
        Command c;
        c.line = line_no;
        if (!parse_line(tokens, c, host, installed, message)) {
            error = {file, line_no, message};
            return false;
        }
        script.commands.push_back(std::move(c));
    }
    return true;
}

}  // namespace kestrane::host
