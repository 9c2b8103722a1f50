// The update cycle, and drawing as the simulator does it for every shown
// element: the value and string callbacks called, and what they returned kept
// for the checks.
#include <algorithm>
#include <cstring>

#include "host/host.h"
#include "host/model/aircraft.h"

namespace kestrane::host {

void Host::draw(GaugeHeader* g) {
    if (g == nullptr || g->elements == nullptr)
        return;
    std::vector<Drawn>& slots = drawn_[g];
    std::size_t at = 0;
    draw_element(g->elements[0], 0, slots, at);
}

u8 element_callbacks(const Element* e) {
    if (e == nullptr)
        return 0;
    auto bit = [](auto cb, u8 b) { return cb != nullptr ? b : u8{0}; };
    switch (e->kind) {
        case kNeedle:
            return e->u.needle.callback != nullptr || e->u.needle.source.id != 0 ? u8{Drawn::kX} : u8{0};
        case kString:
            return bit(e->u.str.callback, Drawn::kText);
        case kSlider:
            return bit(e->u.slider.callback_x, Drawn::kX) | bit(e->u.slider.callback_y, Drawn::kY);
        case kMovingImage:
            return bit(e->u.moving.callback_x, Drawn::kX) | bit(e->u.moving.callback_y, Drawn::kY);
        case kSprite:
            return bit(e->u.sprite.callback_x, Drawn::kX) | bit(e->u.sprite.callback_y, Drawn::kY) |
                   bit(e->u.sprite.callback_rot, Drawn::kRotation);
        default:
            return 0;
    }
}

void Host::draw_element(Element* e, int depth, std::vector<Drawn>& slots, std::size_t& at) {
    if (e == nullptr || depth > 256)
        return;
    if (slots.size() <= at)
        slots.resize(at + 1);
    Drawn& d = slots[at++];
    if ((e->flags & kHidden) == 0)
        draw_item(e, d);
    if (e->children)
        for (Element** c = e->children; *c != nullptr; ++c)
            draw_element(*c, depth + 1, slots, at);
}

// One shown element: its value and string callbacks, as the simulator calls them.
inline void Host::draw_item(Element* e, Drawn& d) {
    auto value = [&](ValueCallback cb, int i) {
        if (cb == nullptr)
            return;
        d.value[i] = cb(e);
        d.have |= static_cast<u8>(1u << i);
    };
    switch (e->kind) {
        case kNeedle:
            if (e->u.needle.callback)
                value(e->u.needle.callback, 0);
            else if (e->u.needle.source.id) {
                // the host shows the token itself
                svc_lookup_var(&e->u.needle.source);
                d.value[0] = e->u.needle.source.value.n;
                d.have |= Drawn::kX;
            }
            break;
        case kString:
            if (e->u.str.callback) {
                e->u.str.callback(e);
                const char* t = e->u.str.text;
                const char* end =
                    t ? static_cast<const char*>(std::memchr(t, 0, e->u.str.char_count + 1)) : t;
                d.text.assign(t ? t : "", t ? (end ? end : t + e->u.str.char_count + 1) - t : 0);
                d.have |= Drawn::kText;
            }
            break;
        case kSlider:
            value(e->u.slider.callback_x, 0);
            value(e->u.slider.callback_y, 1);
            break;
        case kMovingImage:
            value(e->u.moving.callback_x, 0);
            value(e->u.moving.callback_y, 1);
            break;
        case kSprite:
            value(e->u.sprite.callback_x, 0);
            value(e->u.sprite.callback_y, 1);
            value(e->u.sprite.callback_rot, 2);
            break;
        default:
            break;
    }
}

namespace {
void preorder(Element* e, int depth, std::vector<Element*>& out) {
    if (e == nullptr || depth > 256)
        return;
    out.push_back(e);
    if (e->children)
        for (Element** c = e->children; *c != nullptr; ++c)
            preorder(*c, depth + 1, out);
}
}  // namespace

std::vector<Element*> Host::drawing_order(GaugeHeader* g) {
    std::vector<Element*> out;
    if (g != nullptr && g->elements != nullptr)
        preorder(g->elements[0], 0, out);
    return out;
}

const std::vector<Drawn>* Host::drawn_slots(const GaugeHeader* g) const {
    auto it = drawn_.find(g);
    return it == drawn_.end() ? nullptr : &it->second;
}

const Drawn* Host::drawn(GaugeHeader* g, const Element* e) const {
    if (g == nullptr || g->elements == nullptr || e == nullptr)
        return nullptr;
    auto it = drawn_.find(g);
    if (it == drawn_.end())
        return nullptr;
    const std::vector<Element*> order = drawing_order(g);
    const std::size_t at = static_cast<std::size_t>(std::find(order.begin(), order.end(), e) - order.begin());
    if (at >= order.size() || at >= it->second.size())
        return nullptr;
    return &it->second[at];
}

void Host::run(int cycles) {
    for (int c = 0; c < cycles; ++c) {
        set_token(1, token(1) + 1.0);
        // simulation time from where it was last set, without summing 1/18s
        ++time_cycles_;
        f64 now = time_base_ + static_cast<f64>(time_cycles_) / 18.0;
        store_token(kTokenSimTime, &now, sizeof now);
        if (model_)
            model_->step(*this);
        // nothing a callback or a drawing callback can reach installs or
        // removes a gauge, so the plan holds for the whole pass
        const DrawItem* items = draw_items_.data();
        for (const CycleGauge *gauge = cycle_.data(), *end = gauge + cycle_.size(); gauge != end; ++gauge) {
            GaugeHeader* g = gauge->g;
            if (g->callback)
                g->callback(g, 6, 0);
            for (const DrawItem *it = items + gauge->first, *last = items + gauge->last; it != last; ++it)
                if ((it->e->flags & kHidden) == 0)
                    draw_item(it->e, gauge->slots[it->slot]);
        }
        if (recorder_) {
            sound_.advance(&recorder_->cycle_buffer());
            recorder_->flush_cycle();
        } else {
            sound_.advance(nullptr);
        }
        if (trace_ && !trace_items_.empty() && time_cycles_ % 18 == 0)
            trace_row();
    }
}

}  // namespace kestrane::host
