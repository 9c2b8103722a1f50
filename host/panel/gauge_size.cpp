#include "host/panel/gauge_size.h"

#include <algorithm>

namespace kestrane::host::panel {

Size default_size(GaugeHeader* g) {
    int bottom = 1;
    bool boxes = false;
    if (g->mouse != nullptr)
        for (const MouseRect* r = g->mouse; r->row != kRowEnd; ++r)
            if (r->row != kRowTooltip && r->w > 0 && r->h > 0) {
                bottom = std::max(bottom, r->y + r->h);
                boxes = true;
            }
    Host::for_each_element(g, [&](Element* e, const std::string&) { bottom = std::max(bottom, e->y); });
    const int width = static_cast<int>(g->size_x_mm);
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
        return default_size(g);
    };
}

}  // namespace kestrane::host::panel
