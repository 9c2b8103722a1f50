// kestrane fdadi_jm47: attitude director indicator. Its callback runs the
// flight-director computer; the images draw its state.
#include "frame/gauge.h"
#include "guidance/adi_draw.h"
#include "guidance/fd_computer.h"

namespace {
using namespace kestrane;
using namespace kestrane::adi;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    fd::computer_cycle(g);
}
}  // namespace

KESTRANE_GAUGE(fdadi, layout(gauge("kestrane fdadi_jm47", 188, update).help(0xAB0D), sphere_pitch, speed_dev,
                             icon(42025, 0, 0, 0x40000003),  // e9 lit background
                             needle(42026, 42, 260, 3, 30, 0x40004003, speed_dev,
                                    speed_dev_scale)))  // e10 lit needle
