// kestrane th_val_jm47: throttle readout. Both lever positions to two
// decimals on digit drums, shown for 36 ticks after either lever moves (the
// time restarting while it keeps moving). A click switches the readout off,
// with an OFF caption for 36 ticks, and on again.
#include "frame/gauge.h"

namespace {
using namespace kestrane;

ModuleVar lever_1 = token(558), lever_2 = token(568);  // fraction, 1.0 full, < 0 reverse
ModuleVar tick = token(1);

constexpr i32 kShowTicks = 36;

enum Digit { kUnits1, kTenths1, kHundredths1, kUnits2, kTenths2, kHundredths2, kDigits };
i32 digits[kDigits] = {};

// Movement is seen by comparing the levers in hundredths against samples.
i32 first_1 = 0, first_2 = 0, second_1 = 0, second_2 = 0;
u8 thr_sampled = 0;
u8 thr_moved = 0;  // 0 no change, 1 change seen, 2 a further change seen
u8 thr_show_armed = 0;
i32 thr_show_end_tick = 0;
u8 thr_display_mode = 0;  // 0 on, 2 switching off, 1 off
u8 thr_off_armed = 0;
i32 thr_off_end_tick = 0;

void set_digits(i32* d, f64 m) {
    const i32 units = trunc_to<i32>(m);
    const i32 tenths = trunc_to<i32>(10 * m - 10.0 * units);
    d[0] = units;
    d[1] = tenths;
    d[2] = trunc_to<i32>(100 * m - (10.0 * tenths + 100.0 * units));
}

void show_digits(GaugeHeader* g, bool shown) {
    for (int n = 1; n <= 6; ++n)
        show(g, n, shown);
}

u32 KCALL toggle(PixPoint*, u32) {
    if (thr_display_mode == 0) {
        thr_display_mode = 2;
    } else {
        thr_display_mode = 0;
        thr_moved = 1;  // show the levers at once
    }
    return 0;
}

void KCALL update(GaugeHeader* g, u32 service, std::uintptr_t) {
    if (service != kServiceUpdate)
        return;
    const f64 l1 = host::read(lever_1);
    const f64 l2 = host::read(lever_2);
    const f64 now = host::read(tick);

    // Engine 1 fire: lever 1 follows lever 2; extinguisher fired: idle.
    if (ac.warn_eng1_fire == 0 && ac.warn_eng1_ext_fired == 1) {
        digits[kUnits1] = digits[kTenths1] = digits[kHundredths1] = 0;
    } else {
        const f64 src = ac.warn_eng1_fire == 1 ? l2 : l1;
        set_digits(&digits[kUnits1], l1 >= 0 ? src : -src);
    }
    set_digits(&digits[kUnits2], l2 >= 0 ? l2 : -l2);

    const i32 h1 = trunc_to<i32>(100 * l1), h2 = trunc_to<i32>(100 * l2);
    if (thr_sampled == 0) {
        first_1 = h1;
        first_2 = h2;
        thr_sampled = 1;
    } else {
        second_1 = h1;
        second_2 = h2;
        if (second_1 != first_1 || second_2 != first_2) {
            thr_moved = thr_moved == 0 ? 1 : 2;
            thr_sampled = 0;
        }
    }

    if (thr_display_mode == 0) {
        // switched back on during the OFF caption: the caption goes, and the
        // next switching off shows it for its full time
        show(g, 7, false);
        thr_off_armed = 0;
        // A change seen just as the readout is switched on counts as the first.
        if (thr_moved != 0 && thr_show_armed == 0) {
            thr_show_end_tick = trunc_to<i32>(now + kShowTicks);
            thr_show_armed = 1;
            thr_moved = 1;
        }
        if (thr_moved == 2 && thr_show_armed == 1) {  // still moving: time restarts
            thr_show_end_tick = trunc_to<i32>(now + kShowTicks);
            thr_moved = 1;
        }
        if (thr_moved == 1 && thr_show_armed == 1) {
            if (now < thr_show_end_tick) {
                show_digits(g, true);
            } else {
                show_digits(g, false);
                thr_moved = 0;
                thr_show_armed = 0;
            }
        }
    } else {
        show_digits(g, false);
        thr_moved = 0;
        thr_show_armed = 0;
        if (thr_display_mode == 2 && thr_off_armed == 0) {
            thr_off_end_tick = trunc_to<i32>(now + kShowTicks);
            thr_off_armed = 1;
        }
        if (thr_display_mode == 2 && thr_off_armed == 1) {
            if (now < thr_off_end_tick) {
                show(g, 7, true);
            } else {
                show(g, 7, false);
                thr_display_mode = 1;
                thr_off_armed = 0;
            }
        }
    }
}

f64 KCALL across(Element*) {
    return 1.0;
}
template <int D>
f64 KCALL drum(Element*) {
    return clamp_back(digits[D], 0, 9);
}
}  // namespace

// clang-format off
KESTRANE_GAUGE(th_val,
    gauge("kestrane th_val_jm47", 123, update)
        .elements(image(21824, 0x4001),                                                       // e0
                  moving(21856, 24, 0, 0x40004003, across, drum<kHundredths1>, 0, 10, 0, 9),  // e1 1: 0.0x
                  moving(21856, 12, 0, 0x40004003, across, drum<kTenths1>, 0, 10, 0, 9),      // e2 1: 0.x
                  moving(21856, 0, 0, 0x40004003, across, drum<kUnits1>, 0, 10, 0, 9),        // e3 1: x.
                  moving(21856, 111, 0, 0x40004003, across, drum<kHundredths2>, 0, 10, 0, 9), // e4 2: 0.0x
                  moving(21856, 99, 0, 0x40004003, across, drum<kTenths2>, 0, 10, 0, 9),      // e5 2: 0.x
                  moving(21856, 87, 0, 0x40004003, across, drum<kUnits2>, 0, 10, 0, 9),       // e6 2: x.
                  icon(21840, 36, 0, 0x40000003))                                           // e7 OFF
        .mouse(click(0, 0, 123, 16, kCursorHand, toggle)))
// clang-format on
