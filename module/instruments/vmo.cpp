// kestrane vmo_jm47: overspeed light and clacker, at 320 knots or the Mach
// limit, on the essential bus.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar airspeed = token(61), mach_quantity = token(64);

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 speed = host::read(airspeed);
    const f64 mach = host::read(mach_quantity);
    const bool over = ac.elec_ess_bus == 1 && (speed >= 320.0 || mach >= 15600.0);
    ac.vmo_overspeed = over ? 1 : 0;
    if (over)
        sound::play(sound::kCrecelle, sound::kLooping);
    else
        sound::stop(sound::kCrecelle);
    show(g, 0, over);
}
}  // namespace

KESTRANE_GAUGE(
    vmo, gauge("kestrane vmo_jm47", 17, update).elements(image(42080, 0x40004001)))  // e0 overspeed light
