#include "panels/panel_load.h"

namespace kestrane {
void panel_load_cycle() {}
}  // namespace kestrane
