// The element index reaches, for every gauge and number, the element that
// walking down the chain of first children reaches.
#include <gtest/gtest.h>

#include "frame/elements.h"
#include "host/host.h"

namespace {

using kestrane::GaugeHeader;
using kestrane::host::Host;

TEST(ElementIndex, MatchesTheChainWalkOnEveryGauge) {
    Host host;
    ASSERT_TRUE(host.ok()) << host.error();
    ASSERT_GT(host.gauge_count(), 0);
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        const int n = Host::chain_length(g);
        for (int k = -1; k <= n + 1; ++k)
            ASSERT_EQ(kestrane::element(g, k), Host::element(g, k < 0 ? 0 : k)) << g->name << " e" << k;
        kestrane::show(g, n, false);  // past the end: nothing to hide, nothing written
        EXPECT_EQ(kestrane::element(g, n), nullptr);
    }
}

}  // namespace
