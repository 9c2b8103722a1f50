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

KESTRANE_GAUGE(
    fdadi,
    gauge("kestrane fdadi_jm47", 188, update)
        .help(0xAB0D)
        .elements(failing(image(42016, 0x4001), kAttitudeFailure),  // e0 background (unlit)
                  failing(sprite(42017, 150, 150, 150, 150, 0x4003, 150, 150, none, sphere_pitch, bank),
                          kAttitudeFailure),  // e1 attitude sphere
                  failing(sprite(42018, 150, 150, 150, 150, 0x4083, 150, 150, none, none, bank),
                          kAttitudeFailure),                                          // e2 bank scale
                  moving(42019, 26, 36, 0x4003, across, speed_dev_pos, 0, 1, 0, 15),  // e3 speed deviation
                  icon(42020, 57, 188, 0x40000003),                                   // e4 FD flag
                  icon(42021, 193, 199, 0x40000003),                                  // e5 attitude flag
                  moving(42022, 27, 12, 0x4003, across, pitch_bar, 0, 1, -4, 11),     // e6 pitch bar
                  moving(42023, 27, 12, 0x4003, roll_bar, across, 1, 14, 0, 1),       // e7 roll bar
                  needle(42024, 42, 260, 3, 30, 0x4003, speed_dev,
                         speed_dev_scale),        // e8 speed deviation needle
                  icon(42025, 0, 0, 0x40000003),  // e9 lit background
                  needle(42026, 42, 260, 3, 30, 0x40004003, speed_dev, speed_dev_scale)))  // e10 lit needle
