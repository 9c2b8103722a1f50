// Headers of every gauge of the module.
#pragma once

#include "frame/gauge_abi.h"

namespace kestrane::gauges {
#define KESTRANE_REGISTRY(id) extern GaugeHeader id;
#include "frame/registry.def"
#undef KESTRANE_REGISTRY
}  // namespace kestrane::gauges

namespace kestrane {
inline constexpr int kGaugeCount = 219;
}
