// The panel-load sequence, run each cycle by a gauge whose window is open
// when the aircraft loads.
#pragma once

namespace kestrane {

void panel_load_cycle();

}  // namespace kestrane
