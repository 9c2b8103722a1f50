// kestrane alti_old_jm47: altimeter. Hundreds needle and thousands drum on
// AC bus 2, barometric setting on an hPa and an inHg counter, and the knob
// that sets the host's barometric reference.
#include "frame/gauge.h"
#include "instruments/baro_counter.h"

namespace {
using namespace kestrane;
using namespace kestrane::counter;

ModuleVar altitude = token(74);   // feet
ModuleVar baro_hpa = token(75);   // hectopascals
ModuleVar baro_inhg = token(76);  // inches of mercury

constexpr u32 kSetBaro = 66040;  // value: sixteenths of a hectopascal

f64 needle_value = 0.0;  // hundreds of feet within the thousand, 0..100 a turn
f64 drum_value = 0.0;    // 50 - thousands of feet, 0..51
Drum inhg[4] = {digit_drum(), digit_drum(), digit_drum(), digit_drum()};
Drum hpa[4] = {digit_drum(), digit_drum(), digit_drum(), digit_drum()};

void KCALL update(GaugeHeader*, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 h = host::read(altitude);
    if (ac.elec_ac_bus_2 == 1) {
        needle_value = h / 10.0 - 100.0 * whole(h / 1000.0);
        if (h < -1000.0)
            drum_value = 51.0;
        else if (h >= 50000.0)
            drum_value = 0.0;
        else
            drum_value = 50.0 - h / 1000.0;
    }
    f64 digit[4];
    split4(host::read(baro_inhg) * 100.0, digit);
    aim(inhg, digit);
    split4(host::read(baro_hpa), digit);
    aim(hpa, digit);
}

f64 KCALL hundreds(Element*) {
    return clamp_back(needle_value, 0.0, 100.0);
}
f64 KCALL thousands(Element*) {
    return clamp_back(drum_value, 0.0, 51.0);
}
// Baro knob, while held: one step of `Step` sixteenths a call, within the
// host's range (`Limit` hPa, not reached).
template <int Step, int Limit>
u32 KCALL baro(PixPoint*, u32) {
    if (ac.elec_ac_bus_2 != 1)
        return 0;
    const f64 p = host::read(baro_hpa);
    const bool room = Step < 0 ? p > Limit : p < Limit;
    if (room)
        host::send_event(kSetBaro, static_cast<u32>(trunc_to<i32>(p * 16.0 + Step)));
    return 0;
}

NeedlePoint hundreds_scale[] = {
    {94, 20, 0, 0}, {168, 94, 25, 0}, {94, 168, 50, 0}, {20, 94, 75, 0}, {94, 20, 100, 0}};
}  // namespace

KESTRANE_GAUGE(alti_old, gauge("kestrane alti_old_jm47", 192, update)
                             .elements(image(42096, 0x4001),  // e0 dial
                                       moving(48016, 112, 60, kDrumFlags, across, thousands, 0, 1, 0,
                                              51),                        // e1 thousands
                                       digit<&inhg[0]>(48032, 75, 134),   // e2 inHg thousands
                                       digit<&inhg[1]>(48032, 85, 134),   // e3 inHg hundreds
                                       digit<&inhg[2]>(48032, 95, 134),   // e4 inHg tens
                                       digit<&inhg[3]>(48032, 105, 134),  // e5 inHg units
                                       digit<&hpa[0]>(48032, 75, 39),     // e6 hPa thousands
                                       digit<&hpa[1]>(48032, 85, 39),     // e7 hPa hundreds
                                       digit<&hpa[2]>(48032, 95, 39),     // e8 hPa tens
                                       digit<&hpa[3]>(48032, 105, 39),    // e9 hPa units
                                       needle(48048, 94, 94, 4, 60, kNeedleFlags, hundreds, hundreds_scale, 0,
                                              74))  // e10 hundreds
                             .mouse(repeat(0, 148, 20, 22, kCursorDown, baro<-1, 739>),
                                    repeat(20, 148, 20, 22, kCursorUp, baro<1, 1053>),
                                    repeat(0, 170, 20, 22, kCursorDown, baro<-10, 749>),
                                    repeat(20, 170, 20, 22, kCursorUp, baro<10, 1043>)))
