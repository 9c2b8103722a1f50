// The flight-director computer, run by the ADI's callback once per cycle:
// commands, command bars, course intercept, glide slope, gyro and flags.
#pragma once

#include "frame/gauge_abi.h"

namespace kestrane::fd {

void computer_cycle(GaugeHeader* adi);

}  // namespace kestrane::fd
