#pragma once

namespace kestrane {
// Cold or ready-to-fly start: runs each cycle in the engine 2 extinguisher's callback.
void panel_load_cycle();
}  // namespace kestrane
