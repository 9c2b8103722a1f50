// kestrane radios_sound_jm47: audio selector. Receiver selection, ADF audio
// and audio switch A follow the host; the knob steps the master volume of
// the module's own sounds.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar adf_audio = token(877), adf_audio_2 = token(878);
ModuleVar com1_rx = token(874), com2_rx = token(875), com_both = token(876);
ModuleVar audio_a = token(881);

u32 KCALL sw_a_up(PixPoint*, u32) {
    return set_switch(ac.radio_aud_sw_a, 1), 0;
}
u32 KCALL sw_a_down(PixPoint*, u32) {
    return set_switch(ac.radio_aud_sw_a, 0), 0;
}
u32 KCALL com1_up(PixPoint*, u32) {
    return set_switch(ac.radio_aud_com1, 1), 0;
}
u32 KCALL com1_down(PixPoint*, u32) {
    if (ac.radio_aud_com2 != 0)
        set_switch(ac.radio_aud_com1, 0);  // one receiver stays selected
    return 0;
}
u32 KCALL com2_up(PixPoint*, u32) {
    return set_switch(ac.radio_aud_com2, 1), 0;
}
u32 KCALL com2_down(PixPoint*, u32) {
    if (ac.radio_aud_com1 != 0)
        set_switch(ac.radio_aud_com2, 0);
    return 0;
}
u32 KCALL adf_up(PixPoint*, u32) {
    return set_switch(ac.radio_aud_adf, 1), 0;
}
u32 KCALL adf_down(PixPoint*, u32) {
    return set_switch(ac.radio_aud_adf, 0), 0;
}
u32 KCALL volume_down(PixPoint*, u32) {
    return sound::master_down(), 0;
}
u32 KCALL volume_up(PixPoint*, u32) {
    return sound::master_up(), 0;
}

f64 KCALL volume_needle(Element*) {
    return clamp_back(ac.snd_volume_step, -10, 10);
}

NeedlePoint volume_scale[] = {
    {89, 70, -10, 0}, {91, 52, -5, 0}, {101, 45, 0, 0}, {111, 52, 5, 0}, {113, 70, 10, 0}};

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    // ADF audio
    const bool adf_on = is_on(host::read(adf_audio));
    if (ac.radio_aud_adf == 1) {
        if (ac.elec_ess_bus == 1) {
            if (!adf_on)
                host::send_event(65837);
        } else if (adf_on) {
            host::send_event(65832);
        }
    } else {
        if (adf_on)
            host::send_event(65832);
        if (is_on(host::read(adf_audio_2)))
            host::send_event(65833);
    }
    // receivers
    const bool com1 = is_on(host::read(com1_rx));
    const bool com2 = is_on(host::read(com2_rx));
    const bool both = is_on(host::read(com_both));
    if (ac.radio_aud_com1 && ac.radio_aud_com2) {
        if (!both)
            host::send_event(66465);
    } else if (ac.radio_aud_com1) {
        if (both)
            host::send_event(66465);
        if (!com1)
            host::send_event(66463);
    } else if (ac.radio_aud_com2) {
        if (both)
            host::send_event(66465);
        if (!com2)
            host::send_event(66464);
    }
    // audio switch A
    const bool a_on = is_on(host::read(audio_a));
    if (ac.radio_aud_sw_a == 1) {
        if (ac.elec_dc_bus_1 == 1) {
            if (!a_on)
                host::send_event(66478, 1);
        } else if (a_on) {
            host::send_event(66478, 0);
        }
    } else if (a_on) {
        host::send_event(66478, 0);
    }
    show(g, 1, true);
    show(g, 2, false);
    show(g, 11, ac.radio_aud_sw_a == 1);
    show(g, 10, ac.radio_aud_sw_a != 1);
    show(g, 5, ac.radio_aud_com1 == 1);
    show(g, 4, ac.radio_aud_com1 != 1);
    show(g, 7, ac.radio_aud_com2 == 1);
    show(g, 6, ac.radio_aud_com2 != 1);
    show(g, 9, ac.radio_aud_adf == 1);
    show(g, 8, ac.radio_aud_adf != 1);
}
}  // namespace

KESTRANE_GAUGE(
    radios_sound,
    gauge("kestrane radios_sound_jm47", 159, update)
        .elements(image(8976, 0x3),                                                   // e0
                  icon(9056, 8, 81, 0x3),                                             // e1 always shown
                  icon(9072, 8, 81, 0x40000003),                                      // e2 always hidden
                  icon(9088, 0, 0, 0x3),                                              // e3
                  icon(8816, 48, 16, 0x40000003),                                     // e4 COM 1 down
                  icon(8800, 48, 7, 0x40000003),                                      // e5 COM 1 up
                  icon(9040, 72, 16, 0x40000003),                                     // e6 COM 2 down
                  icon(9024, 72, 7, 0x40000003),                                      // e7 COM 2 up
                  icon(8816, 23, 54, 0x40000003),                                     // e8 ADF down
                  icon(8800, 23, 44, 0x40000003),                                     // e9 ADF up
                  icon(8816, 23, 16, 0x40000003),                                     // e10 switch A down
                  icon(8800, 23, 7, 0x40000003),                                      // e11 switch A up
                  needle(9008, 101, 59, 3, 12, 0x4003, volume_needle, volume_scale))  // e12
        .mouse(click(14, 0, 25, 20, kCursorUp, sw_a_up), click(14, 20, 25, 20, kCursorDown, sw_a_down),
               click(39, 0, 25, 20, kCursorUp, com1_up), click(39, 20, 25, 20, kCursorDown, com1_down),
               click(64, 0, 25, 20, kCursorUp, com2_up), click(64, 20, 25, 20, kCursorDown, com2_down),
               click(14, 41, 25, 20, kCursorUp, adf_up), click(14, 61, 25, 20, kCursorDown, adf_down),
               repeat(82, 48, 20, 25, kCursorDown, volume_down),
               repeat(102, 48, 20, 25, kCursorUp, volume_up)))
