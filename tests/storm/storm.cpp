#include "tests/storm/storm.h"

#include <dlfcn.h>

#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <limits>

namespace kestrane::storm {
namespace {

using host::Drawn;
using host::Host;

// ---------------------------------------------------------------- random

struct Rng {
    std::uint64_t s;
    std::uint64_t next() {  // splitmix64: the same sequence on every platform
        std::uint64_t z = (s += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    int below(int n) { return n <= 0 ? 0 : static_cast<int>(next() % static_cast<std::uint64_t>(n)); }
    int between(int lo, int hi) { return lo + below(hi - lo + 1); }
    f64 unit() { return static_cast<f64>(next() >> 11) * 0x1.0p-53; }
};

constexpr f64 kInf = std::numeric_limits<f64>::infinity();
constexpr f64 kMax = std::numeric_limits<f64>::max();

f64 ordinary_value(Rng& r) {
    switch (r.below(4)) {
        case 0:
            return r.between(0, 5);
        case 1:
            return r.unit() * 2.0 - 1.0;
        case 2:
            return (r.unit() * 2.0 - 1.0) * 400.0;
        default:
            return (r.unit() * 2.0 - 1.0) * 1e5;
    }
}

f64 host_value(Rng& r, Mode mode) {
    static constexpr f64 kFinite[] = {0.0, -1.0, 1e30, -1e30, 1e300, -1e300, kMax, -kMax};
    static constexpr f64 kHostile[] = {kInf, -kInf, std::numeric_limits<f64>::quiet_NaN()};
    const int pick = r.below(10);
    if (pick < 6)
        return ordinary_value(r);
    if (mode == Mode::Hostile && pick >= 8)
        return kHostile[r.below(3)];
    return kFinite[r.below(8)];
}

// ---------------------------------------------------------------- what the module reads

// The host's service table, wrapped to learn which tokens, named variables
// and expressions the module uses, to answer expressions with storm values
// and to see every panel-window toggle. Fixed tables: no allocation.
struct Seen {
    HostServices original{};
    HostServices wrapped{};
    bool token_seen[4096]{};
    u32 tokens[1024]{};
    int token_count = 0;
    const char* named_ptr[256]{};  // the module's own strings, while it is loaded
    int named_count = 0;
    const char* calc_ptr[256]{};
    f64 calc_value[256]{};
    bool calc_set[256]{};
    int calc_count = 0;
    u32 bad_ident = 0;  // a window toggled through the service that no panel has
};
Seen g_seen;

constexpr u32 kIdents[] = {10030, 10040, 10045, 10050, 10055, 10060, 10070, 10080, 10090,
                           10100, 10110, 10120, 10140, 10150, 10160, 10510, 10520};

bool known_ident(u32 ident) {
    for (u32 k : kIdents)
        if (k == ident)
            return true;
    return false;
}

void note_token(u32 id) {
    if (id == 0)
        return;
    if (id < 4096) {
        if (g_seen.token_seen[id])
            return;
        g_seen.token_seen[id] = true;
    } else {
        for (int i = 0; i < g_seen.token_count; ++i)
            if (g_seen.tokens[i] == id)
                return;
    }
    if (g_seen.token_count < 1024)
        g_seen.tokens[g_seen.token_count++] = id;
}

int find_text(const char* const* table, int count, const char* s) {
    for (int i = 0; i < count; ++i)
        if (table[i] == s)
            return i;
    for (int i = 0; i < count; ++i)
        if (std::strcmp(table[i], s) == 0)
            return i;
    return -1;
}

void KCALL w_lookup_var(ModuleVar* v) {
    if (v != nullptr)
        note_token(v->id);
    g_seen.original.lookup_var(v);
}

u32 KCALL w_window_toggle(u32 ident) {
    if (!known_ident(ident))
        g_seen.bad_ident = ident;
    return g_seen.original.panel_window_toggle(ident);
}

u32 KCALL w_register_named(const char* name) {
    if (name != nullptr && find_text(g_seen.named_ptr, g_seen.named_count, name) < 0 &&
        g_seen.named_count < 256)
        g_seen.named_ptr[g_seen.named_count++] = name;
    return g_seen.original.register_named_variable(name);
}

u32 KCALL w_calc(const char* code, f64* result, i32* iresult, const char** sresult) {
    if (code == nullptr)
        return g_seen.original.execute_calculator_code(code, result, iresult, sresult);
    int i = find_text(g_seen.calc_ptr, g_seen.calc_count, code);
    if (i < 0 && g_seen.calc_count < 256) {
        i = g_seen.calc_count++;
        g_seen.calc_ptr[i] = code;
        g_seen.calc_set[i] = false;
    }
    const u32 ok = g_seen.original.execute_calculator_code(code, result, iresult, sresult);
    if (i >= 0 && g_seen.calc_set[i] && result != nullptr)
        *result = g_seen.calc_value[i];
    return ok;
}

bool wrap_services() {
    void* h = dlopen(host::default_module_path().c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (h == nullptr)
        return false;
    auto* imports = static_cast<ModuleImports*>(dlsym(h, "ImportTable"));
    dlclose(h);
    if (imports == nullptr || imports->entries[0].ptr == nullptr)
        return false;
    if (imports->entries[0].ptr != &g_seen.wrapped)
        g_seen.original = *static_cast<const HostServices*>(imports->entries[0].ptr);
    g_seen.wrapped = g_seen.original;
    g_seen.wrapped.lookup_var = w_lookup_var;
    g_seen.wrapped.panel_window_toggle = w_window_toggle;
    g_seen.wrapped.register_named_variable = w_register_named;
    g_seen.wrapped.execute_calculator_code = w_calc;
    imports->entries[0].ptr = &g_seen.wrapped;
    return true;
}

void forget_seen() {
    const HostServices original = g_seen.original, wrapped = g_seen.wrapped;
    std::memset(static_cast<void*>(&g_seen), 0, sizeof g_seen);
    g_seen.original = original;
    g_seen.wrapped = wrapped;
}

// Tokens that images read by themselves, without a callback.
void note_sources(Element* e, int depth) {
    if (e == nullptr || depth > 256)
        return;
    switch (e->kind) {
        case kNeedle:
            note_token(e->u.needle.source.id);
            break;
        case kString:
            note_token(e->u.str.source.id);
            break;
        case kIcon:
            note_token(e->u.icon.source.id);
            break;
        case kSlider:
            note_token(e->u.slider.source_x.id);
            note_token(e->u.slider.source_y.id);
            break;
        default:
            break;
    }
    if (e->children)
        for (Element** c = e->children; *c != nullptr; ++c)
            note_sources(*c, depth + 1);
}

// ---------------------------------------------------------------- invariants

// Declared flags of every element of every gauge, in drawing order.
constexpr int kMaxElements = 32768;
Element* g_elements[kMaxElements];
u32 g_flags[kMaxElements];
int g_element_count = 0;

void snapshot(Element* e, int depth) {
    if (e == nullptr || depth > 256 || g_element_count >= kMaxElements)
        return;
    g_elements[g_element_count] = e;
    g_flags[g_element_count++] = e->flags & ~kHidden;
    if (e->children)
        for (Element** c = e->children; *c != nullptr; ++c)
            snapshot(*c, depth + 1);
}

// The element drawn k-th (each element, then its children in list order).
const Element* drawn_element(const Element* e, std::size_t& k, int depth) {
    if (e == nullptr || depth > 256)
        return nullptr;
    if (k-- == 0)
        return e;
    if (e->children)
        for (Element** c = e->children; *c != nullptr; ++c)
            if (const Element* found = drawn_element(*c, k, depth + 1))
                return found;
    return nullptr;
}

struct Storm {
    Host& host;
    const Options& opt;
    Result& res;
    Rng rng;
    char action[160]{};

    bool fail(const char* fmt, ...) __attribute__((format(printf, 2, 3)));
    bool check(bool calm);
    void step();
    void mouse();
    void values(int count, bool calm);
    void reinstall();
    void cycles(int n) {
        host.run(n);
        res.cycles += n;
    }
};

bool Storm::fail(const char* fmt, ...) {
    char what[300];
    va_list ap;
    va_start(ap, fmt);
    std::vsnprintf(what, sizeof what, fmt, ap);
    va_end(ap);
    std::snprintf(res.failure, sizeof res.failure, "seed %llu mode %s step %ld cycle %ld after %s: %s",
                  static_cast<unsigned long long>(opt.seed), mode_name(opt.mode), res.steps, res.cycles,
                  action, what);
    res.failed = true;
    res.tokens = g_seen.token_count;
    res.named = g_seen.named_count;
    res.expressions = g_seen.calc_count;
    return false;
}

// Fields that hold a host value as read while their instrument is off or out
// of range: a non-finite value the host gave stays until it is read again.
bool holds_host_value(const char* field) {
    for (const char* f : {"hsi_cdi", "hsi_card", "fd_gs_vs_target", "door_fwd_value"})
        if (std::strcmp(field, f) == 0)
            return true;
    return false;
}

bool Storm::check(bool calm) {
    const bool all_finite = opt.mode == Mode::Finite || calm;
    for (int i = 0; i < g_element_count; ++i)
        if ((g_elements[i]->flags & ~kHidden) != g_flags[i])
            return fail("image flags of an element of \"%s\" changed from %#x to %#x",
                        g_elements[i]->gauge ? g_elements[i]->gauge->name : "?", g_flags[i],
                        g_elements[i]->flags & ~kHidden);
    if (const FieldTable* t = host.field_table())
        for (u32 i = 0; i < t->count; ++i) {
            const FieldInfo& f = t->fields[i];
            if (all_finite && (f.type == kF32 || f.type == kF64) && !std::isfinite(host.read_field(f)) &&
                !(calm && holds_host_value(f.name)))
                return fail("state field %s is %g", f.name, host.read_field(f));
        }
    for (GaugeHeader* g : host.installed_gauges()) {
        const std::vector<Drawn>* slots = host.drawn_slots(g);
        if (slots == nullptr)
            continue;
        for (std::size_t k = 0; k < slots->size(); ++k) {
            const Drawn& d = (*slots)[k];
            for (int a = 0; a < 3; ++a) {
                if ((d.have & (1u << a)) == 0)
                    continue;
                const f64 v = d.value[a];
                if (opt.mode == Mode::Finite && !std::isfinite(v)) {
                    std::size_t at = k;
                    const Element* e = drawn_element(g->elements[0], at, 0);
                    return fail("\"%s\" drew %g (element %zu in drawing order, image %u, axis %d)", g->name,
                                v, k, e ? e->bitmap : 0u, a);
                }
            }
        }
    }
    int live = 0;
    for (const auto& b : host.sound_device().buffers())
        live += !b->released;
    if (live > 19)
        return fail("%d sound buffers held", live);
    for (const host::KeyEvent& e : host.events())
        if (e.event >= 66506 && e.event <= 66508 && !known_ident(e.value))
            return fail("event %u sent for unknown window %u", e.event, e.value);
    if (g_seen.bad_ident != 0)
        return fail("window %u toggled, which no panel has", g_seen.bad_ident);
    return true;
}

void Storm::mouse() {
    const auto& gauges = host.installed_gauges();
    if (gauges.empty())
        return;
    GaugeHeader* g = gauges[static_cast<std::size_t>(rng.below(static_cast<int>(gauges.size())))];
    const int rows = Host::child_rows(g);
    if (rows == 0) {
        std::snprintf(action, sizeof action, "nothing (\"%s\" has no mouse rows)", g->name);
        cycles(1);
        return;
    }
    int pick = rng.below(rows);
    MouseRect* r = g->mouse;
    for (;; ++r)
        if (r->row == kRowChild && pick-- == 0)
            break;
    const int x = r->x + (r->w > 1 ? rng.below(r->w) : 0);
    const int y = r->y + (r->h > 1 ? rng.below(r->h) : 0);
    u32 kinds[3];
    int n = 0;
    for (u32 k : {kMouseLeft, kMouseRight, kMouseMove})
        if (r->flags & k)
            kinds[n++] = k;
    if (n == 0) {
        cycles(1);
        return;
    }
    const u32 kind = kinds[rng.below(n)];
    ++res.mouse;
    if (kind == kMouseLeft && rng.below(3) == 0) {
        const int held = rng.between(1, 40);
        std::snprintf(action, sizeof action, "hold \"%s\" %d %d %d", g->name, x, y, held);
        host.hold(g, x, y, held);
        res.cycles += held;
        return;
    }
    std::snprintf(action, sizeof action, "%s \"%s\" %d %d",
                  kind == kMouseLeft    ? "click"
                  : kind == kMouseRight ? "rclick"
                                        : "move",
                  g->name, x, y);
    host.click(g, x, y, kind);
    cycles(rng.between(1, 50));
}

void Storm::values(int count, bool calm) {
    const int total = g_seen.token_count + g_seen.named_count + g_seen.calc_count;
    if (total == 0)
        return;
    for (int i = 0; i < count; ++i) {
        const int pick = calm ? i : rng.below(total);
        if (calm && pick >= total)
            break;
        const f64 v = calm ? ordinary_value(rng) : host_value(rng, opt.mode);
        ++res.values;
        if (pick < g_seen.token_count) {
            const u32 id = g_seen.tokens[pick];
            if (id == 1)
                continue;  // the host's own cycle counter
            if (!calm && rng.below(10) == 0)
                host.set_token_bcd(id, static_cast<u32>(rng.next()));
            else
                host.set_token(id, v);
            std::snprintf(action, sizeof action, "token %u = %g", id, v);
        } else if (pick < g_seen.token_count + g_seen.named_count) {
            const char* name = g_seen.named_ptr[pick - g_seen.token_count];
            host.set_named(name, v);
            std::snprintf(action, sizeof action, "named \"%s\" = %g", name, v);
        } else {
            const int k = pick - g_seen.token_count - g_seen.named_count;
            g_seen.calc_value[k] = v;
            g_seen.calc_set[k] = true;
            std::snprintf(action, sizeof action, "calc \"%s\" = %g", g_seen.calc_ptr[k], v);
        }
    }
    if (calm)
        std::snprintf(action, sizeof action, "every host value set to an ordinary one");
}

void Storm::reinstall() {
    GaugeHeader* g = nullptr;
    if (rng.below(3) == 0)
        g = host.gauge("kestrane toggle_pan_tadg");
    if (g == nullptr)
        g = host.gauge(rng.below(host.gauge_count()));
    if (g == nullptr)
        return;
    ++res.reinstalls;
    const bool back = rng.below(4) != 0;
    std::snprintf(action, sizeof action, "remove%s \"%s\"", back ? " and reinstall" : "", g->name);
    if (host.installed(g)) {
        host.remove(g);
        cycles(rng.between(1, 5));
        if (!back)
            return;
    }
    host.install(g);
}

void Storm::step() {
    host.begin_step();
    const int r = rng.below(100);
    if (r < 45) {
        mouse();
        return;
    }
    if (r < 88)
        values(rng.between(1, 8), false);
    else if (r < 91 && opt.reinstall)
        reinstall();
    else
        std::snprintf(action, sizeof action, "nothing");
    cycles(rng.between(1, 50));
}

}  // namespace

const char* mode_name(Mode m) {
    return m == Mode::Finite ? "finite" : "hostile";
}

bool run_episode(Host& host, const Options& options, Result& result) {
    result = Result{};
    if ((options.reload && !host.reload()) || !wrap_services()) {
        std::snprintf(result.failure, sizeof result.failure, "cannot load the module: %s",
                      host.error().c_str());
        result.failed = true;
        return false;
    }
    forget_seen();
    g_element_count = 0;
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        if (g->elements != nullptr) {
            snapshot(g->elements[0], 0);
            note_sources(g->elements[0], 0);
        }
    }
    Storm s{host, options, result, Rng{options.seed * 0x2545F4914F6CDD1Dull + 1}, {}};
    std::snprintf(s.action, sizeof s.action, "installing every gauge");
    host.install_all();
    s.cycles(2);
    if (!s.check(false))
        return false;
    if (options.started != nullptr)
        options.started();
    while (result.cycles < options.cycles) {
        ++result.steps;
        if (options.mode == Mode::Hostile && s.rng.below(25) == 0) {
            // The host is calm again: everything must come back to finite.
            host.begin_step();
            s.values(1 << 12, true);
            s.cycles(60);
            if (!s.check(true))
                return false;
            continue;
        }
        s.step();
        if (!s.check(false))
            return false;
    }
    result.tokens = g_seen.token_count;
    result.named = g_seen.named_count;
    result.expressions = g_seen.calc_count;
    return true;
}

}  // namespace kestrane::storm
