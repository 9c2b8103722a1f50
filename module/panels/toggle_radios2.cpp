// kestrane toggle_radios2: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_radios2, gauge("kestrane toggle_radios2", 79, update)
                                   .tip("display/hide ADF2 & COM2")
                                   .elements(image(8960, 0x4001)))  // e0
