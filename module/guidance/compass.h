// The standby compass's click, which the overview panel's compass button
// also performs: shows or hides the host's compass.
#pragma once

#include "frame/gauge_abi.h"

namespace kestrane::compass {

u32 KCALL toggle(PixPoint*, u32);

}  // namespace kestrane::compass
