// Lighting rule of the flight-director control knobs.
#pragma once

#include "frame/gauge.h"

namespace kestrane::fd {

// Knob images lit with the panel lighting up and a DC supply.
inline bool knobs_lit() {
    return ac.light_panel_state >= 3 && (ac.elec_dc_bus_2 == 1 || ac.elec_ess_bus == 1);
}

}  // namespace kestrane::fd
