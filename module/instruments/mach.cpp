// kestrane mach_jm47: Mach indicator. The needle rises at most 10 a cycle and
// falls at once; a failed indicator runs its needle down to 0.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar mach_quantity = token(64), mach_failed = token(274);

f64 shown = 0.0;  // 0..1000

inline NeedlePoint mach_scale[] = {{93, 20, 0, 0},     {128, 29, 300, 0},  {160, 69, 400, 0},
                                   {156, 120, 500, 0}, {119, 155, 600, 0}, {67, 155, 700, 0},
                                   {30, 120, 800, 0},  {26, 69, 900, 0},   {58, 29, 1000, 0}};

f64 KCALL mach_needle(Element*) {
    return clamp_back(shown, 0.0, 1000.0);
}

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 quantity = host::read(mach_quantity);
    const f64 target = quantity > 3000.0 ? quantity / 20.0 - 5.0 : 0.0;
    if (trunc_to<i32>(host::read(mach_failed)) == 1)
        shown = shown - 10.0 <= 0.0 ? 0.0 : shown - 10.0;
    else if (target - 10.0 <= shown)
        shown = target;
    else
        shown += 10.0;
}
}  // namespace

KESTRANE_GAUGE(mach, gauge("kestrane mach_jm47", 123, update)
                         .elements(image(42160, 0x4001),  // e0 dial
                                   needle(48544, 93, 90, 4, 66, 0x4003, mach_needle, mach_scale, 0,
                                          64)))  // e1 Mach
