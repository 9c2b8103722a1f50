// kestrane radios_adf1_jm47 and radios_adf2_jm47: the ADF tuning panels. The
// knobs send the host's tuning events whatever the power; each cycle the panel
// reads the active frequency back through a calculator expression and rolls
// five drums to it, the tenths drum shown only for a while after fine tuning.
// ADF 1's left switch powers its receiver; ADF 2's only moves its picture.
#include "frame/drum.h"
#include "frame/gauge.h"
#include "radios/adf.h"

namespace {
using namespace kestrane;

// Drums: 0 tenths, 1 units, 2 tens, 3 hundreds, 4 thousands (0 or 1).
constexpr i32 kPositions[5] = {10, 10, 10, 10, 2};

struct AdfDrums {
    Drum d[5];
};

constexpr AdfDrums at_rest() {
    AdfDrums t{};
    for (int k = 0; k < 5; ++k)
        t.d[k] = Drum{0.0, 0.0, kPositions[k]};
    return t;
}

AdfDrums adf1_drums = at_rest(), adf2_drums = at_rest();

ModuleVar tick = token(1);
ModuleVar adf1_power = token(880);

constexpr f64 kTenthsShownTicks = 100.0;

struct Adf {
    u8& fine;
    u8& sw;    // left switch, 1 up
    u8& sw_b;  // right switch, 1 up
    u8& dec_request;
    u8& dec_shown;
    f64& dec_time;
    AdfDrums& drums;
    const char* frequency;
    int tenths;         // chain number of the tenths drum; the others follow it
    bool powers_radio;  // the left switch powers the receiver (ADF 1)
    // knob events, in the order of the boxes left to right
    u32 a_up, a_down, b_up, b_down, c_up, c_down, fine_up, fine_down;
};

constexpr Adf kAdf1{.fine = ac.radio_adf1_fine,
                    .sw = ac.radio_adf1_sw,
                    .sw_b = ac.radio_adf1_sw_b,
                    .dec_request = ac.radio_adf1_dec_request,
                    .dec_shown = ac.radio_adf1_dec_shown,
                    .dec_time = ac.radio_adf1_dec_time,
                    .drums = adf1_drums,
                    .frequency = "(A:Adf active frequency:1,Kilohertz)",
                    .tenths = 5,
                    .powers_radio = true,
                    .a_up = 65648,
                    .a_down = 65666,
                    .b_up = 65649,
                    .b_down = 65667,
                    .c_up = 65650,
                    .c_down = 65668,
                    .fine_up = 66462,
                    .fine_down = 66461};
constexpr Adf kAdf2{.fine = ac.radio_adf2_fine,
                    .sw = ac.radio_adf2_sw,
                    .sw_b = ac.radio_adf2_sw_b,
                    .dec_request = ac.radio_adf2_dec_request,
                    .dec_shown = ac.radio_adf2_dec_shown,
                    .dec_time = ac.radio_adf2_dec_time,
                    .drums = adf2_drums,
                    .frequency = "(A:Adf active frequency:2,Kilohertz)",
                    .tenths = 6,
                    .powers_radio = false,
                    .a_up = 66544,
                    .a_down = 66548,
                    .b_up = 66545,
                    .b_down = 66549,
                    .c_up = 66546,
                    .c_down = 66550,
                    .fine_up = 66554,
                    .fine_down = 66555};

// ---------------------------------------------------------------- knobs

template <const Adf& S, u32 Adf::*Event>
u32 KCALL knob(PixPoint*, u32) {
    host::send_event(S.*Event, 0);
    return 0;
}

// The right knob tunes in tenths while fine mode is on, and brings the tenths
// drum back into view.
template <const Adf& S, u32 Adf::*Coarse, u32 Adf::*Fine>
u32 KCALL right_knob(PixPoint*, u32) {
    if (S.fine != 0) {
        S.dec_request = 1;
        host::send_event(S.*Fine, 0);
    } else {
        host::send_event(S.*Coarse, 0);
    }
    return 0;
}

template <const Adf& S>
u32 KCALL fine_toggle(PixPoint*, u32) {
    S.fine = S.fine != 0 ? 0 : 1;
    if (S.fine != 0)
        S.dec_request = 1;
    return 0;
}

template <const Adf& S, u8 Position>
u32 KCALL left_switch(PixPoint*, u32) {
    return set_switch(S.sw, Position), 0;
}
template <const Adf& S, u8 Position>
u32 KCALL right_switch(PixPoint*, u32) {
    return set_switch(S.sw_b, Position), 0;
}

u32 KCALL toggle_com2_window(PixPoint*, u32) {
    return host::window_toggle(10055);
}

// ---------------------------------------------------------------- cycle

void receiver_power(const Adf& s) {
    const bool powered = is_on(host::read(adf1_power));
    if (!s.powers_radio)
        return;
    if (s.sw == 0) {
        if (powered)
            host::send_event(65836);
    } else if (ac.elec_dc_sec_bus == 1) {
        if (!powered)
            host::send_event(65841);
    } else if (powered) {
        host::send_event(65836);
    }
}

void tenths_visibility(GaugeHeader* g, const Adf& s) {
    const f64 now = host::read(tick);
    if (s.dec_request == 1) {
        if (s.dec_shown == 0) {
            show(g, s.tenths, true);
            s.dec_time = now;
            s.dec_shown = 1;
            s.dec_request = 0;
        } else {
            s.dec_shown = 0;  // shown again, with a new time, next cycle
        }
    } else if (s.dec_shown == 1 && now >= s.dec_time + kTenthsShownTicks) {
        show(g, s.tenths, false);
        s.dec_shown = 0;
        s.dec_request = 0;
    }
}

void frequency_digits(const Adf& s) {
    const f64 f = host::calc(s.frequency);
    const i32 n = trunc_to<i32>(f);
    const i32 k = f >= 1000.0 ? 1 : 0;
    const i32 h = n / 100 - 10 * k;
    const i32 te = n / 10 - (100 * k + 10 * h);
    const i32 u = n - (1000 * k + 100 * h + 10 * te);
    const f64 d = (f - static_cast<f64>(1000 * k + 100 * h + 10 * te + u)) * 10.0;
    drum_aim(s.drums.d[4], k);
    drum_aim(s.drums.d[3], h);
    drum_aim(s.drums.d[2], te);
    drum_aim(s.drums.d[1], u);
    drum_aim(s.drums.d[0], d);
}

template <const Adf& S>
void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    show(g, 1, S.sw == 1);
    show(g, 2, S.sw == 0);
    receiver_power(S);
    show(g, 3, S.sw_b == 1);
    show(g, 4, S.sw_b == 0);
    if (!S.powers_radio)
        show(g, 5, ac.panel_click_areas == 1);
    tenths_visibility(g, S);
    frequency_digits(S);
}

template <const Adf& S, int K>
f64 KCALL drum_y(Element*) {
    return drum_step(S.drums.d[K]);
}

// ---------------------------------------------------------------- declaration

constexpr u32 kDrumFlags = 0x4003;
constexpr u32 kHiddenDrum = 0x40004003;  // the tenths drum, shown on demand

template <const Adf& S, int K>
constexpr def::ElementDecl drum(u32 bitmap, i32 x, i32 y, u32 flags = kDrumFlags) {
    return def::moving(bitmap, x, y, flags, drum_fixed_x, drum_y<S, K>, 0.0, 1.0, 0.0,
                       static_cast<f64>(kPositions[K]));
}

// The knobs and switches, the same boxes on both panels, then any others.
template <const Adf& S, class Decl, class... More>
constexpr auto with_adf_areas(const Decl& gauge, More... more) {
    using namespace def;
    return gauge.mouse(repeat(47, 50, 25, 33, kCursorUp, knob<S, &Adf::a_up>),
                       repeat(22, 50, 25, 33, kCursorDown, knob<S, &Adf::a_down>),
                       repeat(100, 73, 25, 33, kCursorUp, knob<S, &Adf::b_up>),
                       repeat(75, 73, 25, 33, kCursorDown, knob<S, &Adf::b_down>),
                       repeat(152, 50, 25, 33, kCursorUp, right_knob<S, &Adf::c_up, &Adf::fine_up>),
                       repeat(127, 50, 25, 33, kCursorDown, right_knob<S, &Adf::c_down, &Adf::fine_down>),
                       click(85, 40, 42, 18, kCursorHand, fine_toggle<S>),
                       click(52, 13, 28, 13, kCursorDown, left_switch<S, 0>),
                       click(52, 0, 28, 13, kCursorUp, left_switch<S, 1>),
                       click(114, 0, 28, 13, kCursorHand, right_switch<S, 1>),
                       click(114, 13, 28, 13, kCursorHand, right_switch<S, 0>), more...);
}
}  // namespace

f64 KCALL kestrane::radios::adf2_thousands_y(Element* e) {
    return drum_y<kAdf2, 4>(e);
}

KESTRANE_GAUGE(radios_adf1,
               with_adf_areas<kAdf1>(gauge("kestrane radios_adf1_jm47", 196, update<kAdf1>)
                                         .elements(image(8768, 0x4001),             // e0
                                                   icon(8800, 62, 0, 0x40000003),   // e1 left switch up
                                                   icon(8816, 62, 9, 0x40000003),   // e2 left switch down
                                                   icon(8800, 124, 0, 0x40000003),  // e3 right switch up
                                                   icon(8816, 124, 9, 0x40000003),  // e4 right switch down
                                                   drum<kAdf1, 0>(8576, 146, 41,
                                                                  kHiddenDrum),     // e5 tenths, on demand
                                                   drum<kAdf1, 1>(8784, 126, 39),   // e6 units
                                                   drum<kAdf1, 2>(8576, 106, 41),   // e7 tens
                                                   drum<kAdf1, 3>(8576, 86, 41),    // e8 hundreds
                                                   drum<kAdf1, 4>(9216, 66, 41))))  // e9 thousands

KESTRANE_GAUGE(
    radios_adf2,
    with_adf_areas<kAdf2>(gauge("kestrane radios_adf2_jm47", 196, update<kAdf2>)
                              .elements(image(8768, 0x4001),              // e0
                                        icon(8800, 62, 0, 0x40000003),    // e1 left switch up
                                        icon(8816, 62, 9, 0x40000003),    // e2 left switch down
                                        icon(8800, 124, 0, 0x40000003),   // e3 right switch up
                                        icon(8816, 124, 9, 0x40000003),   // e4 right switch down
                                        icon(9248, 120, 77, 0x40004003),  // e5 where the COM 2 toggle lies
                                        drum<kAdf2, 0>(8576, 146, 41, kHiddenDrum),  // e6 tenths, on demand
                                        drum<kAdf2, 1>(8784, 126, 39),               // e7 units
                                        drum<kAdf2, 2>(8576, 106, 41),               // e8 tens
                                        drum<kAdf2, 3>(8576, 86, 41),                // e9 hundreds
                                        moving(9216, 66, 41, kDrumFlags, drum_fixed_x,  // e10 thousands
                                               radios::adf2_thousands_y, 0.0, 1.0, 0.0, 2.0)),
                          click(127, 87, 55, 55, kCursorHand, toggle_com2_window)))
