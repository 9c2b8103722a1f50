// kestrane raltmini_jm47: the overview panel's small radio altimeter. Same
// dial, needles and buttons as the radio altimeter; it only shows its flags
// and lights.
#include "instruments/ralt.h"

namespace {
using namespace kestrane;
using namespace kestrane::ralt;

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    show(g, kWarmup, ac.ralt_warmup_flag == 1);
    show(g, kOffFlag, ac.ralt_off_flag == 1);
    show(g, kDhLight, ac.ralt_dh_light == 1);
    show(g, kTest, ac.ralt_test_light == 1);
}

// The radio altimeter's values, unclamped.
f64 KCALL dh_bug(Element*) {
    return ac.ralt_dh;
}
f64 KCALL height(Element*) {
    return ac.ralt_needle;
}
}  // namespace

KESTRANE_GAUGE(raltmini, layout(gauge("kestrane raltmini_jm47", 228, update), dh_bug, height))
