// kestrane toggle_pan_tadg: toggle of the tadg and battery switch panels. Its
// install and removal also start and release the module's sounds.
#include "frame/gauge_def.h"
#include "frame/host.h"
#include "frame/sound.h"

namespace {
using namespace kestrane;

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t extra) {
    if (service == kServiceInstall) {
        sound::start_and_load(extra);
    } else if (service == kServiceKill) {
        sound::shutdown();
    }
}
}  // namespace

KESTRANE_GAUGE(toggle_pan_tadg, gauge("kestrane toggle_pan_tadg", 70, update)
                                    .tip("display/hide tadg & batt switch panel")
                                    .elements(image(80, 0x40004003)))  // e0
