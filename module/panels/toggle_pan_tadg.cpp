// kestrane toggle_pan_tadg: background only so far.
#include "frame/gauge_def.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}
}  // namespace

KESTRANE_GAUGE(toggle_pan_tadg,
    gauge("kestrane toggle_pan_tadg", 70, update).tip("display/hide tadg & batt switch panel")
        .elements(image(80, 0x40004003)))  // e0
