#include "host/panel/gauge_size.h"

#include <algorithm>
#include <cstdint>

namespace kestrane::host::panel {

std::optional<Size> bmp_size(const u8* data, u32 size) {
    if (data == nullptr || size < 26 || data[0] != 'B' || data[1] != 'M')
        return std::nullopt;
    auto i32_at = [&](int at) {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(data[at]) | data[at + 1] << 8 |
                                         data[at + 2] << 16 | static_cast<std::uint32_t>(data[at + 3]) << 24);
    };
    const std::int32_t w = i32_at(18), h = i32_at(22);
    if (w <= 0 || w > 65535 || h == INT32_MIN || h == 0 || h > 65535 || h < -65535)
        return std::nullopt;
    return Size{w, h < 0 ? -h : h};
}

namespace {
std::optional<Size> background_size(GaugeHeader* g, const BitmapTable* bitmaps) {
    const Element* e0 = g->elements != nullptr ? g->elements[0] : nullptr;
    if (bitmaps == nullptr || e0 == nullptr)
        return std::nullopt;
    for (u32 i = 0; i < bitmaps->count; ++i)
        if (bitmaps->ids[i] == e0->bitmap)
            return bmp_size(bitmaps->data[i], bitmaps->sizes[i]);
    return std::nullopt;
}
}  // namespace

Size default_size(GaugeHeader* g, const BitmapTable* bitmaps) {
    const int width = static_cast<int>(g->size_x_mm);
    if (const auto bg = background_size(g, bitmaps); bg && width > 0) {
        const long long h = (static_cast<long long>(width) * bg->h + bg->w / 2) / bg->w;
        return {width, static_cast<int>(std::clamp<long long>(h, 1, 65535))};
    }
    int bottom = 1;
    bool boxes = false;
    if (g->mouse != nullptr)
        for (const MouseRect* r = g->mouse; r->row != kRowEnd; ++r)
            if (r->row != kRowTooltip && r->w > 0 && r->h > 0) {
                bottom = std::max(bottom, r->y + r->h);
                boxes = true;
            }
    Host::for_each_element(g, [&](Element* e, const std::string&) { bottom = std::max(bottom, e->y); });
    // Lights and overlays drawn from the top edge, with nothing to click,
    // reach no lower than their position: give them a usable height.
    if (!boxes && bottom < kMinHeight)
        bottom = std::min(std::max(width, 1), kMinHeight);
    return {width, bottom};
}

SizeOf registry_sizes(const Host& host) {
    return [&host](std::string_view name) -> std::optional<Size> {
        GaugeHeader* g = host.gauge(name);
        if (g == nullptr)
            return std::nullopt;
        return default_size(g, host.bitmap_table());
    };
}

}  // namespace kestrane::host::panel
