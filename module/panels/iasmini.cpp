// kestrane iasmini_jm47: the overview panel's small airspeed indicator. The
// dial and four needles of the airspeed indicator, drawn from its state, with
// its bug knobs and preset buttons; no lights, no counters. Its callback does
// nothing: the needles move from the state alone.
#include "frame/gauge.h"
#include "instruments/ias_dial.h"

namespace {
using namespace kestrane;
using namespace kestrane::ias;

void KCALL update(GaugeHeader*, u32, std::uintptr_t) {}

// The airspeed indicator's values, unclamped.
f64 KCALL speed(Element*) {
    return ac.ias_needle;
}
f64 KCALL second(Element*) {
    return ac.ias_max_needle;
}
f64 KCALL bug_1(Element*) {
    return ac.ias_bug_1;
}
f64 KCALL bug_2(Element*) {
    return ac.ias_bug_2;
}
}  // namespace

KESTRANE_GAUGE(iasmini,
               knobs(dial(gauge("kestrane iasmini_jm47", 206, update), {speed, second, bug_1, bug_2})))
