// Default sizes of the module's gauges, as panel files place them.
#pragma once

#include "host/host.h"
#include "host/panel/panel_cfg.h"

namespace kestrane::host::panel {

// Width: the registry's default width. Height: the lowest edge that a mouse
// box or an element position of the gauge reaches; a gauge without mouse boxes
// whose images sit near its top edge gets kMinHeight, or its width when narrower.
inline constexpr int kMinHeight = 32;
Size default_size(GaugeHeader* g);

// Looks names up in the registry of the module `host` has loaded.
SizeOf registry_sizes(const Host& host);

}  // namespace kestrane::host::panel
