#include "host/cockpit/state.h"

#include <cmath>
#include <string>

#include "host/host.h"

namespace kestrane::host::cockpit {

namespace {

bool same(f64 a, f64 b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

// JSON has no NaN or infinity: the page gets null, and draws that as 0.
json number(f64 v) {
    return std::isfinite(v) ? json(v) : json(nullptr);
}

std::string ident_text(u32 ident) {
    return std::to_string(ident);
}

}  // namespace

const Drawn* StateTracker::Slot::drawn_at(const Host& host) const {
    const std::vector<Drawn>* d = host.drawn_slots(g);
    if (d == nullptr || static_cast<std::size_t>(index) >= d->size())
        return nullptr;
    return &(*d)[static_cast<std::size_t>(index)];
}

StateTracker::StateTracker(Host& host, std::vector<std::pair<std::string, bool>> symbolic)
    : host_(host), symbolic_(std::move(symbolic)) {
    for (GaugeHeader* g : host_.installed_gauges()) {
        const int gauge = host_.gauge_index(g->name);
        int i = 0;
        for (Element* e : Host::drawing_order(g)) {
            Slot s;
            s.g = g;
            s.gauge = gauge;
            s.index = i++;
            s.e = e;
            slots_.push_back(std::move(s));
        }
    }
    if (const FieldTable* t = host_.field_table())
        fields_.assign(t->count, std::nan(""));
}

bool StateTracker::set_window(const std::string& ident, bool open) {
    for (auto& [name, is_open] : symbolic_)
        if (name == ident) {
            is_open = open;
            return true;
        }
    if (ident.empty() || ident.size() > 9 || ident.find_first_not_of("0123456789") != std::string::npos)
        return false;
    host_.set_window(static_cast<u32>(std::stoul(ident)), open);
    return true;
}

std::vector<std::string> StateTracker::window_list() const {
    std::vector<std::string> out;
    for (const auto& [name, open] : symbolic_)
        if (open)
            out.push_back(name);
    for (u32 ident : host_.open_windows())
        out.push_back(ident_text(ident));
    return out;
}

void StateTracker::collect() {
    for (const KeyEvent& k : host_.events())
        events_.push_back({k.event, k.value});
    host_.clear_events();
    // The page hears what the host's buffers do: a play of a sound that plays
    // already in that mode, a stop of a silent one or a volume it has already
    // are not sent again.
    for (const SoundEvent& s : host_.sound_device().log()) {
        if (s.buffer == nullptr || s.buffer->name.empty())
            continue;
        Heard& h = heard_[s.buffer->name];
        json op{{"n", s.buffer->name}};
        switch (s.op) {
            case SoundOp::Play: {
                const bool loop = (s.flags & 1u) != 0;
                if (h.playing && h.looping == loop)
                    continue;
                h.playing = true;
                h.looping = loop;
                op["op"] = "play";
                op["loop"] = loop;
                break;
            }
            case SoundOp::Stop:
            case SoundOp::Release:
                if (!h.playing)
                    continue;
                h.playing = false;
                op["op"] = "stop";
                break;
            case SoundOp::Volume:
                if (s.value < -10000 || s.value > 0 || s.value == h.volume)
                    continue;
                h.volume = s.value;
                op["op"] = "vol";
                op["v"] = s.value;
                break;
        }
        sounds_.push_back(std::move(op));
    }
    // one-shot sounds that ran to their end
    for (const auto& b : host_.sound_device().buffers())
        if (!b->playing && !b->name.empty())
            if (auto it = heard_.find(b->name); it != heard_.end())
                it->second.playing = false;
    host_.sound_device().clear_log();
}

json StateTracker::element_entry(const Slot& s, bool hidden, const Drawn* d) const {
    json v = json::array();
    for (int i = 0; i < 3; ++i)
        v.push_back(d != nullptr && (d->have & (1u << i)) ? number(d->value[i]) : json(nullptr));
    json entry = {s.gauge, s.index, hidden ? 1 : 0, std::move(v)};
    if (d != nullptr && (d->have & Drawn::kText))
        entry.push_back(d->text);
    return entry;
}

json StateTracker::sound_state() const {
    json out = json::array();
    for (const auto& b : host_.sound_device().buffers()) {
        if (b->name.empty() || b->released)
            continue;
        out.push_back({{"n", b->name}, {"op", "vol"}, {"v", b->volume}});
        if (b->playing)
            out.push_back({{"n", b->name}, {"op", "play"}, {"loop", b->looping}});
    }
    return out;
}

json StateTracker::full() const {
    json el = json::array();
    for (const Slot& s : slots_)
        el.push_back(element_entry(s, (s.e->flags & kHidden) != 0, s.drawn_at(host_)));
    json fields = json::array();
    if (const FieldTable* t = host_.field_table())
        for (u32 i = 0; i < t->count; ++i)
            fields.push_back(number(host_.read_field(t->fields[i])));
    return {{"t", "full"},
            {"el", std::move(el)},
            {"win", window_list()},
            {"snd", sound_state()},
            {"fld", std::move(fields)}};
}

json StateTracker::diff() {
    json out = json::object();
    json el = json::array();
    for (Slot& s : slots_) {
        const bool hidden = (s.e->flags & kHidden) != 0;
        const Drawn* d = s.drawn_at(host_);
        bool changed = hidden != s.hidden;
        if (d != nullptr) {
            changed = changed || d->have != s.have || d->text != s.text;
            for (int i = 0; i < 3; ++i)
                changed = changed || !same(d->value[i], s.v[i]);
        }
        if (!changed)
            continue;
        s.hidden = hidden;
        if (d != nullptr) {
            s.have = d->have;
            s.text = d->text;
            for (int i = 0; i < 3; ++i)
                s.v[i] = d->value[i];
        }
        el.push_back(element_entry(s, hidden, d));
    }
    if (!el.empty())
        out["el"] = std::move(el);
    if (std::vector<std::string> w = window_list(); w != windows_) {
        windows_ = w;
        out["win"] = std::move(w);
    }
    if (const FieldTable* t = host_.field_table()) {
        json fld = json::array();
        for (u32 i = 0; i < t->count; ++i) {
            const f64 v = host_.read_field(t->fields[i]);
            if (!same(v, fields_[i])) {
                fields_[i] = v;
                fld.push_back({i, number(v)});
            }
        }
        if (!fld.empty())
            out["fld"] = std::move(fld);
    }
    if (!sounds_.empty())
        out["snd"] = std::exchange(sounds_, json::array());
    if (!events_.empty())
        out["ev"] = std::exchange(events_, json::array());
    if (out.empty())
        return nullptr;
    out["t"] = "diff";
    return out;
}

}  // namespace kestrane::host::cockpit
