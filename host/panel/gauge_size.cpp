#include "host/panel/gauge_size.h"

#include <algorithm>

namespace kestrane::host::panel {

Size default_size(GaugeHeader* g) {
    int bottom = 1;
    if (g->mouse != nullptr)
        for (const MouseRect* r = g->mouse; r->row != kRowEnd; ++r)
            if (r->row != kRowTooltip)
                bottom = std::max(bottom, r->y + r->h);
    Host::for_each_element(g, [&](Element* e, const std::string&) { bottom = std::max(bottom, e->y); });
    const int width = static_cast<int>(g->size_x_mm);
    // Strips of lights and overlays drawn at the top edge reach no lower
    // than their first row: give them a usable height.
    if (bottom < kMinHeight)
        bottom = std::min(std::max(width, 1), kMinHeight);
    return {width, bottom};
}

SizeOf registry_sizes(const Host& host) {
    return [&host](std::string_view name) -> std::optional<Size> {
        GaugeHeader* g = host.gauge(name);
        if (g == nullptr)
            return std::nullopt;
        return default_size(g);
    };
}

}  // namespace kestrane::host::panel
