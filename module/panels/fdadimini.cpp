// kestrane fdadimini_jm47: the overview panel's small ADI. It draws the
// attitude and flight-director bars that the ADI's flight-director computer
// works out, and shows its two flags.
#include "frame/gauge.h"
#include "guidance/adi_draw.h"

namespace {
using namespace kestrane;
using namespace kestrane::adi;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    show(g, kFdFlag, ac.fd_flag == 1);
    show(g, kAttFlag, ac.adi_flag == 1);
}

// The ADI's values, unclamped.
f64 KCALL pitch(Element*) {
    return ac.adi_pitch;
}
f64 KCALL deviation(Element*) {
    return ac.fd_speed_dev;
}
}  // namespace

KESTRANE_GAUGE(fdadimini,
               layout(gauge("kestrane fdadimini_jm47", 188, update).help(0xAB0D), pitch, deviation))
