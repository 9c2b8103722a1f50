// Default sizes of the module's gauges, as panel files place them.
#pragma once

#include <optional>

#include "host/host.h"
#include "host/panel/panel_cfg.h"

namespace kestrane::host::panel {

// Width and height of a BMP file's image; nothing for data that is not one.
std::optional<Size> bmp_size(const u8* data, u32 size);

// Width: the registry's default width. Height: as the simulator stretches the
// background bitmap over that width, keeping its proportions. Without the
// bitmap, the lowest edge that a mouse box or an element position reaches; a
// gauge without mouse boxes whose images sit near its top edge gets
// kMinHeight, or its width when narrower.
inline constexpr int kMinHeight = 32;
Size default_size(GaugeHeader* g, const BitmapTable* bitmaps = nullptr);

// Looks names up in the registry of the module `host` has loaded.
SizeOf registry_sizes(const Host& host);

}  // namespace kestrane::host::panel
