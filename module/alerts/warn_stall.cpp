// kestrane warn_stall_jm47: stall warning light and klaxon.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar stall_warning = token(67);

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    ac.warn_stall_lit = is_on(host::read(stall_warning)) && ac.elec_gen_bus == 1;
    const bool sounding = ac.warn_stall_lit && ac.elec_gen_bus == 1;
    if (sounding)
        sound::play(sound::kKlaxonCont, sound::kLooping);
    else
        sound::stop(sound::kKlaxonCont);
    show(g, 0, sounding);
}
}  // namespace

KESTRANE_GAUGE(warn_stall, gauge("kestrane warn_stall_jm47", 80, update)
                               .elements(image(22816, 0x40000003)))  // e0 the light
