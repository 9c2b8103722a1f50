// The element index reaches, for every gauge and number, the element that
// walking down the chain of first children reaches, and show() changes that
// element's hidden bit and nothing else.
#include <gtest/gtest.h>

#include <vector>

#include "frame/elements.h"
#include "host/host.h"

namespace {

using kestrane::Element;
using kestrane::GaugeHeader;
using kestrane::u32;
using kestrane::host::Host;

std::vector<u32> all_flags(GaugeHeader* g) {
    std::vector<u32> out;
    for (Element* e : Host::drawing_order(g))
        out.push_back(e->flags);
    return out;
}

TEST(ElementIndex, MatchesTheChainWalkOnEveryGauge) {
    Host host;
    ASSERT_TRUE(host.ok()) << host.error();
    ASSERT_GT(host.gauge_count(), 0);
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        const int n = Host::chain_length(g);
        for (int k = -1; k <= n + 1; ++k)
            ASSERT_EQ(kestrane::element(g, k), Host::element(g, k < 0 ? 0 : k)) << g->name << " e" << k;
        EXPECT_EQ(kestrane::element(g, n), nullptr);
    }
}

// Branch elements are laid out after the chain: a slip there shows the wrong image.
TEST(ElementIndex, ShowTouchesOnlyTheWalkedElement) {
    Host host;
    ASSERT_TRUE(host.ok()) << host.error();
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        const std::vector<Element*> order = Host::drawing_order(g);
        const std::vector<u32> before = all_flags(g);
        const int n = Host::chain_length(g);
        for (int k = 0; k < n; ++k) {
            Element* walked = Host::element(g, k);
            const bool was_shown = (walked->flags & kestrane::kHidden) == 0;
            kestrane::show(g, k, !was_shown);
            for (std::size_t j = 0; j < order.size(); ++j) {
                const u32 expected = order[j] == walked ? before[j] ^ kestrane::kHidden : before[j];
                ASSERT_EQ(order[j]->flags, expected) << g->name << " e" << k << ", element " << j;
            }
            kestrane::show(g, k, was_shown);
        }
        // numbers computed at run time outside the chain write nothing
        for (int k : {-1, n, n + 1, 64, 1 << 20}) {
            const volatile int computed = k;
            kestrane::show(g, computed, true);
            kestrane::show(g, computed, false);
        }
        ASSERT_EQ(all_flags(g), before) << g->name;
    }
}

}  // namespace
