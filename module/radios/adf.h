// The ADF 2 panel's thousands drum, repeated on the panel toggle beside it.
#pragma once

#include "frame/drum.h"

namespace kestrane::radios {

// The y value callback of the ADF 2 thousands drum (its x is drum_fixed_x).
// Each call moves the drum one step.
f64 KCALL adf2_thousands_y(Element*);

}  // namespace kestrane::radios
