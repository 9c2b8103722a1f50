#include "host/cockpit/assets.h"

#include <climits>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "host/cockpit/state.h"
#include "host/host.h"
#include "host/panel/gauge_size.h"

namespace kestrane::host::cockpit {

namespace {

std::string mime_of(std::string_view name) {
    if (name.ends_with(".html"))
        return "text/html; charset=utf-8";
    if (name.ends_with(".js"))
        return "text/javascript; charset=utf-8";
    if (name.ends_with(".css"))
        return "text/css; charset=utf-8";
    return "application/octet-stream";
}

void put_u32(std::string& s, std::uint32_t v) {
    for (int i = 0; i < 4; ++i)
        s.push_back(static_cast<char>((v >> (8 * i)) & 0xFF));
}

void put_u16(std::string& s, std::uint32_t v) {
    s.push_back(static_cast<char>(v & 0xFF));
    s.push_back(static_cast<char>((v >> 8) & 0xFF));
}

json element_json(const Element* e) {
    json j{{"k", e->kind},   {"b", e->bitmap},          {"x", e->x}, {"y", e->y}, {"rx", e->ref_x},
           {"ry", e->ref_y}, {"f", e->flags & ~kHidden}};
    switch (e->kind) {
        case kNeedle: {
            json t = json::array();
            for (u32 i = 0; i < e->u.needle.table_count && e->u.needle.table != nullptr; ++i) {
                const NeedlePoint& p = e->u.needle.table[i];
                t.push_back({p.x, p.y, std::isfinite(p.value) ? p.value : 0.0});
            }
            j["t"] = std::move(t);
            break;
        }
        case kString:
            j["bw"] = e->u.str.box_w;
            j["bh"] = e->u.str.box_h;
            j["n"] = e->u.str.char_count;
            j["fg"] = e->u.str.fg;
            j["bg"] = e->u.str.bg;
            j["font"] = e->u.str.font ? e->u.str.font : "";
            break;
        case kSlider:
            j["sc"] = {e->u.slider.scale_x, e->u.slider.scale_y};
            break;
        case kMovingImage:
            j["mn"] = {e->u.moving.min_x, e->u.moving.max_x, e->u.moving.min_y, e->u.moving.max_y};
            break;
        case kSprite:
            j["tc"] = {e->u.sprite.texture_cx, e->u.sprite.texture_cy};
            j["sc"] = {e->u.sprite.scale_x, e->u.sprite.scale_y};
            break;
        default:
            break;
    }
    return j;
}

json gauge_json(GaugeHeader* g, panel::Size size) {
    json elements = json::array();
    for (const Element* e : Host::drawing_order(g))
        elements.push_back(element_json(e));
    json mouse = json::array();
    std::string tip;
    if (g->mouse != nullptr)
        for (const MouseRect* r = g->mouse; r->row != kRowEnd; ++r) {
            if (r->row == kRowTooltip && r->u.tooltip != nullptr)
                tip = r->u.tooltip;
            else if (r->row == kRowChild)
                mouse.push_back({r->x, r->y, r->w, r->h, r->cursor, r->flags});
        }
    return {{"name", g->name},           {"w", size.w}, {"h", size.h}, {"el", std::move(elements)},
            {"mouse", std::move(mouse)}, {"tip", tip}};
}

// Width and height from a BMP file's header, or nothing.
}  // namespace

std::string wav_file(int channels, int rate, int bits, const unsigned char* data, std::size_t n) {
    std::string s;
    s.reserve(44 + n + 1);
    const std::uint32_t block = static_cast<std::uint32_t>(channels * (bits / 8));
    s += "RIFF";
    put_u32(s, static_cast<std::uint32_t>(36 + n + (n & 1)));
    s += "WAVEfmt ";
    put_u32(s, 16);
    put_u16(s, 1);
    put_u16(s, static_cast<std::uint32_t>(channels));
    put_u32(s, static_cast<std::uint32_t>(rate));
    put_u32(s, static_cast<std::uint32_t>(rate) * block);
    put_u16(s, block);
    put_u16(s, static_cast<std::uint32_t>(bits));
    s += "data";
    put_u32(s, static_cast<std::uint32_t>(n));
    s.append(reinterpret_cast<const char*>(data), n);
    if (n & 1)
        s.push_back('\0');
    return s;
}

bool Assets::load_page(const std::string& page_dir, std::string& error) {
    for (std::string_view name : kPageFiles) {
        const std::string path = page_dir + "/" + std::string(name);
        std::ifstream in(path, std::ios::binary);
        if (!in) {
            error = path + ": cannot read";
            return false;
        }
        std::ostringstream text;
        text << in.rdbuf();
        Asset a{mime_of(name), text.str()};
        if (name == "index.html")
            by_path_["/"] = a;
        by_path_["/" + std::string(name)] = std::move(a);
    }
    return true;
}

void Assets::load_module(const Host& host, const panel::Panel& panel) {
    json bitmaps = json::array();
    // The bitmaps live in the module library for as long as it is loaded.
    std::map<u32, panel::Size> sizes;
    const auto* table = host.bitmap_table();
    if (table != nullptr)
        for (u32 i = 0; i < table->count; ++i) {
            if (auto s = panel::bmp_size(table->data[i], table->sizes[i]))
                sizes[table->ids[i]] = *s;
            by_path_["/bitmaps/" + std::to_string(table->ids[i]) + ".bmp"] = Asset{
                "image/bmp", std::string(reinterpret_cast<const char*>(table->data[i]), table->sizes[i])};
            bitmaps.push_back(table->ids[i]);
        }

    json sounds = json::array();
    for (const auto& b : const_cast<Host&>(host).sound_device().buffers()) {
        if (b->name.empty() || b->released || b->data.empty())
            continue;
        const WAVEFORMATEX& f = b->format;
        if (f.nChannels < 1 || f.nChannels > 2 || (f.wBitsPerSample != 8 && f.wBitsPerSample != 16))
            continue;
        by_path_["/sounds/" + b->name + ".wav"] =
            Asset{"audio/wav", wav_file(f.nChannels, static_cast<int>(f.nSamplesPerSec), f.wBitsPerSample,
                                        b->data.data(), b->data.size())};
        sounds.push_back(b->name);
    }

    const panel::SizeOf size_of = panel::registry_sizes(host);
    json windows = json::array();
    json gauges = json::object();
    for (const panel::Window& w : panel.windows) {
        json placed = json::array();
        for (const panel::Placed& p : w.gauges) {
            const int index = host.gauge_index(p.name);
            placed.push_back({{"g", index}, {"x", p.x}, {"y", p.y}, {"w", p.w}, {"h", p.h}});
            const std::string key = std::to_string(index);
            if (gauges.contains(key))
                continue;
            // The simulator stretches a gauge's background bitmap, and all
            // the gauge draws with it, over the place panel.cfg gives it.
            GaugeHeader* g = host.gauge(index);
            const Element* e0 = g->elements ? g->elements[0] : nullptr;
            auto bg = e0 ? sizes.find(e0->bitmap) : sizes.end();
            gauges[key] = gauge_json(
                g, bg != sizes.end() ? bg->second : size_of(p.name).value_or(panel::Size{p.w, p.h}));
        }
        windows.push_back({{"title", w.title.empty() ? w.section : w.title},
                           {"ident", w.ident},
                           {"w", w.width},
                           {"h", w.height},
                           {"position", w.position},
                           {"bg", {w.background[0], w.background[1], w.background[2]}},
                           {"gauges", std::move(placed)}});
    }
    json fields = json::array();
    if (const FieldTable* t = host.field_table())
        for (u32 i = 0; i < t->count; ++i)
            fields.push_back({t->fields[i].name, field_type_name(t->fields[i].type)});
    const json layout{{"windows", std::move(windows)},
                      {"gauges", std::move(gauges)},
                      {"fields", std::move(fields)},
                      {"sounds", std::move(sounds)},
                      {"bitmaps", std::move(bitmaps)}};
    by_path_["/api/layout"] = Asset{"application/json", layout.dump()};
}

const Asset* Assets::find(std::string_view path) const {
    auto it = by_path_.find(path);
    return it == by_path_.end() ? nullptr : &it->second;
}

}  // namespace kestrane::host::cockpit
