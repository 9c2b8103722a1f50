// The string elements' formatters against the C library they stand in for.
#include "frame/format.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>

namespace {

void expect_fixed6(double v, std::size_t size = 32) {
    char want[64] = "untouched";
    char got[64] = "untouched";
    std::snprintf(want, size, "%1.6f", v);
    kestrane::format_fixed6(got, size, v);
    ASSERT_STREQ(want, got) << "value " << v << " (bits " << std::hexfloat << v << ") size " << size;
}

TEST(Format, Fixed6MatchesTheCLibrary) {
    const double cases[] = {0.0,
                            -0.0,
                            1.0,
                            -1.0,
                            0.5,
                            0.0000005,
                            0.0000015,
                            0.0000025,
                            -0.0000005,
                            1e-7,
                            -1e-300,
                            4.9406564584124654e-324,
                            0.9999995,
                            0.99999949,
                            9.9999995,
                            123.4567895,
                            905.0,
                            -37.25,
                            1013.25,
                            2.675,
                            1e15,
                            -1e15,
                            9007199254740991.0,
                            9007199254740992.0,
                            1e300,
                            -1e300,
                            DBL_MAX,
                            -DBL_MAX,
                            std::numeric_limits<double>::infinity(),
                            -std::numeric_limits<double>::infinity(),
                            std::nan(""),
                            -std::nan("")};
    for (double v : cases)
        expect_fixed6(v);
    std::mt19937_64 rng(47);
    std::uniform_real_distribution<double> small(-2000.0, 2000.0);
    std::uniform_int_distribution<int> exponent(-40, 60);
    for (int i = 0; i < 200000; ++i) {
        expect_fixed6(small(rng));
        expect_fixed6(std::ldexp(small(rng), exponent(rng)));
        // exact halves of a millionth and their neighbours
        const double tie = (static_cast<double>(rng() % 2000000) + 0.5) / 1e6;
        expect_fixed6(tie);
        expect_fixed6(std::nextafter(tie, 0.0));
        expect_fixed6(std::nextafter(tie, 1.0));
    }
}

TEST(Format, Fixed6CutsLikeSnprintf) {
    // the diagnostic gauge's lines hold six characters
    for (double v : {905.0, -0.25, 123456789.5, 3.0, std::nan("")})
        for (std::size_t size : {0u, 1u, 2u, 7u, 9u})
            expect_fixed6(v, size);
}

TEST(Format, IntMatchesTheCLibrary) {
    for (int v : {0, 7, -7, 42, 100, 255, 999, 1000, -99, -100, 123456, std::numeric_limits<int>::min(),
                  std::numeric_limits<int>::max()})
        for (std::size_t size : {0u, 1u, 3u, 4u, 16u}) {
            char want[32];
            char got[32] = "untouched";
            std::snprintf(want, size, "%3d", v);
            kestrane::format_int(got, size, v, 3);
            if (size == 0)
                EXPECT_STREQ("untouched", got);
            else
                EXPECT_STREQ(want, got) << v << " size " << size;
        }
}

}  // namespace
