#include "host/host.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "host/model/aircraft.h"
#include "host/platform/library.h"

namespace kestrane::host {

// ---------------------------------------------------------------- module

Module::Module(const std::string& path) {
    std::string why;
    handle_ = platform::load_library(path, why);
    if (handle_ == nullptr) {
        error_ = "cannot load module " + path + ": " + why;
        return;
    }
    linkage_ = static_cast<ModuleLinkage*>(platform::find_symbol(handle_, "Linkage"));
    imports_ = static_cast<ModuleImports*>(platform::find_symbol(handle_, "ImportTable"));
    fields_ = static_cast<const FieldTable*>(platform::find_symbol(handle_, "KestraneFields"));
    sounds_ = static_cast<const SoundTable*>(platform::find_symbol(handle_, "KestraneSounds"));
    bitmaps_ = static_cast<const BitmapTable*>(platform::find_symbol(handle_, "KestraneBitmaps"));
    if (linkage_ == nullptr || imports_ == nullptr) {
        error_ = "module " + path + " exports no Linkage or ImportTable";
        linkage_ = nullptr;
    }
}

Module::~Module() {
    if (handle_ != nullptr)
        platform::unload_library(handle_);
}

std::string default_module_path() {
    if (const char* env = std::getenv("KESTRANE_MODULE"); env != nullptr && *env != '\0')
        return env;
#ifdef KESTRANE_DEFAULT_MODULE
    return KESTRANE_DEFAULT_MODULE;
#else
    return "libkestrane.so";
#endif
}

// ---------------------------------------------------------------- services

namespace {
Host* g_host = nullptr;  // the host the module's service calls reach

void KCALL s_lookup_var(ModuleVar* v) {
    if (g_host && v)
        g_host->svc_lookup_var(v);
}
void KCALL s_trigger_key_event(u32 e, u32 v) {
    if (g_host)
        g_host->svc_trigger_key_event(e, v);
}
u32 KCALL s_panel_window_toggle(u32 id) {
    return g_host ? g_host->svc_panel_window_toggle(id) : 0;
}
u32 KCALL s_register_named(const char* n) {
    return g_host && n ? g_host->svc_register_named(n) : 0;
}
f64 KCALL s_get_named(u32 id) {
    return g_host ? g_host->svc_get_named(id) : 0.0;
}
void KCALL s_set_named(u32 id, f64 v) {
    if (g_host)
        g_host->svc_set_named(id, v);
}
u32 KCALL s_calc(const char* code, f64* result, i32* iresult, const char** sresult) {
    if (iresult)
        *iresult = 0;
    if (sresult)
        *sresult = nullptr;
    return g_host ? g_host->svc_calc(code, result) : 0;
}
void KCALL s_el_1(Element*) {}
void KCALL s_el_2(Element*, std::uintptr_t) {}

constexpr u32 kEventWindowToggle = 66506;
constexpr u32 kEventWindowOpen = 66507;
constexpr u32 kEventWindowClose = 66508;
}  // namespace

Host::Host(std::string module_path) : module_path_(std::move(module_path)) {
    services_.version = 1;
    services_.lookup_var = s_lookup_var;
    services_.trigger_key_event = s_trigger_key_event;
    services_.panel_window_toggle = s_panel_window_toggle;
    services_.register_named_variable = s_register_named;
    services_.get_named_variable_value = s_get_named;
    services_.set_named_variable_value = s_set_named;
    services_.execute_calculator_code = s_calc;
    services_.element_list_query = s_el_1;
    services_.element_list_install = s_el_2;
    services_.element_list_initialize = s_el_1;
    services_.element_list_update = s_el_1;
    services_.element_list_generate = s_el_2;
    services_.element_list_plot = s_el_1;
    services_.element_list_kill = s_el_1;
    events_.reserve(1 << 16);
    windows_.reserve(256);
    named_.reserve(64);
    installed_.reserve(256);
    cycle_.reserve(256);
    draw_items_.reserve(4096);
    reload();
}

Host::~Host() {
    if (module_ && module_->ok())
        module_->imports()->entries[0].ptr = nullptr;
    module_.reset();
    if (g_host == this)
        g_host = nullptr;
}

void Host::reset_tables() {
    held_ = {};
    installed_.clear();
    cycle_.clear();
    draw_items_.clear();
    drawn_.clear();
    gauge_by_name_.clear();
    field_by_name_.clear();
    tokens_.assign(kDirectTokens, std::array<u8, 8>{});
    far_tokens_.clear();
    named_.clear();
    named_hits_ = {};
    calc_.clear();
    for (CalcHit& hit : calc_hits_)
        hit.code = nullptr;
    windows_.clear();
    events_.clear();
    time_base_ = 0.0;
    time_cycles_ = 0;
    model_.reset();
    trace_items_.clear();
}

bool Host::reload() {
    if (module_ && module_->ok())
        module_->imports()->entries[0].ptr = nullptr;
    module_.reset();
    reset_tables();
    sound_.reset();
    sounds_ = nullptr;
    error_.clear();
    module_ = std::make_unique<Module>(module_path_);
    if (!module_->ok()) {
        error_ = module_->error();
        return false;
    }
    g_host = this;
    sounds_ = module_->sounds();
    module_->imports()->entries[0].ptr = &services_;
    for (int i = 0; i < gauge_count(); ++i)
        gauge_by_name_.emplace(gauge(i)->name, i);
    if (const FieldTable* t = module_->fields()) {
        for (u32 i = 0; i < t->count; ++i)
            field_by_name_.emplace(t->fields[i].name, &t->fields[i]);
        // A library that was not really unloaded would still hold the last
        // script's values: put every field back to its value at load.
        for (u32 i = 0; i < t->count; ++i) {
            if (read_field(t->fields[i]) != t->fields[i].load_value)
                write_field(t->fields[i], t->fields[i].load_value);
        }
    }
    return true;
}

// ---------------------------------------------------------------- registry

int Host::gauge_count() const {
    if (!ok())
        return 0;
    int n = 0;
    while (n < 219 + 1 && module_->linkage()->gauges[n] != nullptr)
        ++n;
    return n;
}

GaugeHeader* Host::gauge(int index) const {
    if (index < 0 || index >= gauge_count())
        return nullptr;
    return module_->linkage()->gauges[index];
}

int Host::gauge_index(std::string_view name) const {
    auto it = gauge_by_name_.find(name);
    return it == gauge_by_name_.end() ? -1 : it->second;
}

GaugeHeader* Host::gauge(std::string_view name) const {
    return gauge(gauge_index(name));
}

void Host::install(GaugeHeader* g) {
    if (g == nullptr || installed(g))
        return;
    installed_.push_back(g);
    std::vector<Drawn>& slots = drawn_[g];
    // the elements that drawing does something for, with their slots
    const std::vector<Element*> order = drawing_order(g);
    const auto first = static_cast<std::uint32_t>(draw_items_.size());
    for (std::uint32_t slot = 0; slot < order.size(); ++slot) {
        Element* e = order[slot];
        if (element_callbacks(e) != 0)  // a needle that shows its token counts too
            draw_items_.push_back({e, slot});
    }
    if (slots.size() < order.size())
        slots.resize(order.size());
    cycle_.push_back({g, slots.data(), first, static_cast<std::uint32_t>(draw_items_.size())});
    for (Drawn& d : slots)
        d.have = 0;
    if (g->callback)
        g->callback(g, 2, reinterpret_cast<std::uintptr_t>(module_ ? module_->handle() : nullptr));
    tag_sounds();
}

void Host::tag_sounds() {
    if (sounds_ == nullptr)
        return;
    auto* handles = static_cast<void* const*>(sounds_->handles);
    for (u32 i = 0; i < sounds_->count; ++i)
        if (SoundBuffer* b = sound_.buffer(handles[i]); b && b->name.empty())
            b->name = sounds_->names[i];
}

int Host::sound_index(std::string_view name) const {
    if (sounds_ != nullptr)
        for (u32 i = 0; i < sounds_->count; ++i)
            if (name == sounds_->names[i])
                return static_cast<int>(i);
    return -1;
}

bool Host::has_sound(std::string_view name) const {
    return sound_index(name) >= 0;
}

SoundBuffer* Host::sound(std::string_view name) const {
    int i = sound_index(name);
    if (i < 0)
        return nullptr;
    void* handle = static_cast<void* const*>(sounds_->handles)[i];
    return handle ? sound_.buffer(handle) : nullptr;
}

bool Host::record_audio(const std::string& path) {
    recorder_ = std::make_unique<Recorder>(path);
    if (!recorder_->ok())
        recorder_.reset();
    return recorder_ != nullptr;
}

void Host::install_all() {
    for (int i = 0; i < gauge_count(); ++i)
        install(gauge(i));
}

void Host::remove(GaugeHeader* g) {
    auto it = std::find(installed_.begin(), installed_.end(), g);
    if (it == installed_.end())
        return;
    if (g->callback)
        g->callback(g, 12, 0);
    const auto at = it - installed_.begin();
    const CycleGauge gone = cycle_[at];
    draw_items_.erase(draw_items_.begin() + gone.first, draw_items_.begin() + gone.last);
    cycle_.erase(cycle_.begin() + at);
    for (CycleGauge& c : cycle_)
        if (c.first >= gone.last) {
            c.first -= gone.last - gone.first;
            c.last -= gone.last - gone.first;
        }
    installed_.erase(it);
}

bool Host::installed(const GaugeHeader* g) const {
    return std::find(installed_.begin(), installed_.end(), g) != installed_.end();
}

// ---------------------------------------------------------------- mouse

MouseRect* Host::hit(GaugeHeader* g, int x, int y, u32 event_flags) {
    if (g == nullptr || g->mouse == nullptr)
        return nullptr;
    for (MouseRect* r = g->mouse; r->row != kRowEnd; ++r) {
        if (r->row != kRowChild)
            continue;
        if ((r->flags & event_flags) == 0 || r->u.handler == nullptr)
            continue;
        if (x >= r->x && x < r->x + r->w && y >= r->y && y < r->y + r->h)
            return r;
    }
    return nullptr;
}

bool Host::click(GaugeHeader* g, int x, int y, u32 flags) {
    MouseRect* r = hit(g, x, y, flags);
    if (r == nullptr)
        return false;
    PixPoint p{x, y};
    r->u.handler(&p, flags);
    return true;
}

bool Host::hold(GaugeHeader* g, int x, int y, int cycles) {
    if (!press(g, x, y))
        return false;
    for (int c = 0; c < cycles; ++c) {
        if (c > 0)
            repeat_held();
        run(1);
    }
    release();
    return true;
}

bool Host::press(GaugeHeader* g, int x, int y) {
    held_ = {};
    MouseRect* r = hit(g, x, y, kMouseLeft);
    if (r == nullptr)
        return false;
    PixPoint p{x, y};
    r->u.handler(&p, kMouseLeft);
    held_ = {r, {x, y}};
    return true;
}

void Host::repeat_held() {
    if (held_.row == nullptr || (held_.row->flags & kMouseRepeat) == 0)
        return;
    PixPoint p = held_.at;
    held_.row->u.handler(&p, kMouseRepeat);
}

// ---------------------------------------------------------------- tokens

void Host::store_token(u32 id, const void* bytes, std::size_t n) {
    std::array<u8, 8> raw{};
    std::memcpy(raw.data(), bytes, n);
    if (id < kDirectTokens)
        tokens_[id] = raw;
    else
        far_tokens_[id] = raw;
}

void Host::set_token(u32 id, f64 value) {
    if (id == kTokenSimTime) {
        time_base_ = value;
        time_cycles_ = 0;
    }
    store_token(id, &value, sizeof value);
}

// Radio frequencies: the whole number in the first four bytes, the rest 0.
void Host::set_token_bcd(u32 id, u32 bcd) {
    if (id == kTokenSimTime)
        set_token(id, 0.0);
    store_token(id, &bcd, sizeof bcd);
}

void Host::read_token(u32 id, u8 out[8]) const {
    if (id < kDirectTokens) {
        std::memcpy(out, tokens_[id].data(), 8);
        return;
    }
    auto it = far_tokens_.find(id);
    if (it == far_tokens_.end())
        std::memset(out, 0, 8);
    else
        std::memcpy(out, it->second.data(), 8);
}

f64 Host::token(u32 id) const {
    u8 raw[8];
    read_token(id, raw);
    f64 v;
    std::memcpy(&v, raw, 8);
    return v;
}

void Host::svc_lookup_var(ModuleVar* var) {
    const u32 id = var->id;
    var->previous = var->value.n;
    if (id < kDirectTokens) {  // nearly every read: one copy
        std::memcpy(var->value.raw, tokens_[id].data(), 8);
        return;
    }
    u8 raw[8];
    read_token(id, raw);
    std::memcpy(var->value.raw, raw, 8);
}

// ---------------------------------------------------------------- events, windows

void Host::svc_trigger_key_event(u32 event, u32 value) {
    events_.push_back({event, value});
    if (model_)
        model_->event(*this, event, value);
    if (event == kEventWindowToggle)
        window_set(value, !window_open(value));
    else if (event == kEventWindowOpen)
        window_set(value, true);
    else if (event == kEventWindowClose)
        window_set(value, false);
}

u32 Host::svc_panel_window_toggle(u32 ident) {
    window_set(ident, !window_open(ident));
    return 1;
}

bool Host::window_open(u32 ident) const {
    return std::find(windows_.begin(), windows_.end(), ident) != windows_.end();
}

void Host::window_set(u32 ident, bool open) {
    auto it = std::find(windows_.begin(), windows_.end(), ident);
    if (open && it == windows_.end())
        windows_.push_back(ident);
    if (!open && it != windows_.end())
        windows_.erase(it);
}

// ---------------------------------------------------------------- elements

Element* Host::element(GaugeHeader* g, int n) {
    if (g == nullptr || g->elements == nullptr || n < 0)
        return nullptr;
    Element* e = g->elements[0];
    for (int i = 0; i < n && e != nullptr; ++i)
        e = e->children ? e->children[0] : nullptr;
    return e;
}

Element* Host::element(GaugeHeader* g, int n, int branch) {
    Element* e = element(g, n);
    if (branch <= 0 || e == nullptr)
        return branch == 0 ? e : nullptr;
    if (e->children == nullptr || e->children[0] == nullptr)
        return nullptr;
    for (int k = 1; e->children[k] != nullptr; ++k)
        if (k == branch)
            return e->children[k];
    return nullptr;
}

int Host::chain_length(GaugeHeader* g) {
    int n = 0;
    while (element(g, n) != nullptr)
        ++n;
    return n;
}

int Host::child_rows(GaugeHeader* g) {
    int n = 0;
    if (g && g->mouse)
        for (MouseRect* r = g->mouse; r->row != kRowEnd; ++r)
            n += r->row == kRowChild;
    return n;
}

}  // namespace kestrane::host
