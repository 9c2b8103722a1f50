// Counter digits of the altimeter and the altitude-alert selector.
#include "instruments/baro_counter.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace kestrane;
using namespace kestrane::counter;

struct Split {
    f64 v;
    f64 want[4];
};

TEST(BaroCounter, SplitsIntoDigitsKeepingTheFraction) {
    const Split cases[] = {
        {1013.25, {1, 0, 1, 3.25}},
        {2992.0, {2, 9, 9, 2}},
        {29.92 * 100.0, {2, 9, 9, 2}},  // not exactly 2992: units just below 2
        {999.9, {0, 9, 9, 9.9}},
        {40000.0 / 10.0, {4, 0, 0, 0}},
        {std::numeric_limits<f64>::quiet_NaN(), {0, 0, 0, 0}},
    };
    for (const Split& c : cases) {
        f64 d[4];
        split4(c.v, d);
        for (int i = 0; i < 4; ++i)
            EXPECT_NEAR(d[i], c.want[i], 1e-9) << c.v << " digit " << i;
    }
}

}  // namespace
