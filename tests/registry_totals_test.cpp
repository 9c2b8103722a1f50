// The module as a whole against the registry's totals: element kinds, value
// callbacks, mouse rows, cursors, mouse flags and the bitmaps named.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "host/host.h"

namespace {

using namespace kestrane;
using namespace kestrane::host;

struct Totals {
    std::map<u32, int> kinds;
    int needle_callbacks = 0, needle_sources = 0;
    int child_rows = 0, gauges_without_rows = 0, tooltips = 0, without_callback = 0;
    std::map<i32, int> cursors;
    std::map<u32, int> flags;
    std::set<u32> bitmaps;
};

Totals count(Host& host) {
    Totals t;
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        t.without_callback += g->callback == nullptr;
        Host::for_each_element(g, [&](Element* e, const std::string&) {
            ++t.kinds[e->kind];
            if (e->kind != kString)
                t.bitmaps.insert(e->bitmap);
            if (e->kind == kNeedle) {
                t.needle_callbacks += e->u.needle.callback != nullptr;
                t.needle_sources += e->u.needle.source.id != 0;
            }
        });
        int rows = 0;
        for (MouseRect* r = g->mouse; r != nullptr && r->row != kRowEnd; ++r) {
            t.tooltips += r->row == kRowTooltip;
            if (r->row != kRowChild)
                continue;
            ++rows;
            ++t.cursors[r->cursor];
            ++t.flags[r->flags];
        }
        t.child_rows += rows;
        t.gauges_without_rows += rows == 0;
    }
    return t;
}

TEST(Registry, MatchesTheCockpitTotals) {
    Host host;
    ASSERT_TRUE(host.ok()) << host.error();
    ASSERT_EQ(host.gauge_count(), 219);
    Totals t = count(host);
    EXPECT_EQ(t.without_callback, 17);
    EXPECT_EQ(t.kinds[kStaticImage], 219);
    EXPECT_EQ(t.kinds[kNeedle], 139);
    EXPECT_EQ(t.needle_callbacks, 138);
    EXPECT_EQ(t.needle_sources, 17);
    EXPECT_EQ(t.kinds[kString], 13);
    EXPECT_EQ(t.kinds[kSlider], 1);
    EXPECT_EQ(t.kinds[kMovingImage], 121);
    EXPECT_EQ(t.kinds[kSprite], 17);
    EXPECT_EQ(t.child_rows, 576);
    EXPECT_EQ(t.gauges_without_rows, 82);
    EXPECT_EQ(t.tooltips, 25);
    EXPECT_EQ((std::map<i32, int>{{-1, 15}, {1, 142}, {2, 137}, {5, 282}}), t.cursors);
    EXPECT_EQ((std::map<u32, int>{
                  {0x00400000, 15}, {0x20000000, 414}, {0x20200000, 131}, {0x20400000, 15}, {0xA0400000, 1}}),
              t.flags);
}

// Where the gauges' own image lists and the registry's totals part: the panel
// descriptions give 634 icons (the registry counts 647; 13 are named nowhere),
// and where no artwork number is given the images carry numbers of our own,
// so the elements name 661 bitmaps rather than 548.
TEST(Registry, IconsAndBitmapsAsThePanelsGiveThem) {
    Host host;
    ASSERT_TRUE(host.ok()) << host.error();
    Totals t = count(host);
    EXPECT_EQ(t.kinds[kIcon], 634);
    EXPECT_EQ(t.bitmaps.size(), 661u);
}

// Failure lists: only the attitude displays, the turn indicator and the
// standby compass card carry one, which the host applies by itself.
TEST(Registry, FailureListsOnlyWhereTheHostFailsAnInstrument) {
    Host host;
    ASSERT_TRUE(host.ok()) << host.error();
    std::map<std::string, std::string> seen;
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        Host::for_each_element(g, [&](Element* e, const std::string& label) {
            if (e->failures == nullptr)
                return;
            std::string list;
            for (const FailureEntry* f = e->failures; f->key != 0; ++f)
                list += std::to_string(f->key) + ":" + std::to_string(f->action) + " ";
            seen[std::string(g->name) + " e" + label] = list;
        });
    }
    const std::map<std::string, std::string> expected = {
        {"kestrane fdadi_jm47 e0", "8:0 "},     {"kestrane fdadi_jm47 e1", "8:0 "},
        {"kestrane fdadi_jm47 e2", "8:0 "},     {"kestrane fdadimini_jm47 e0", "8:0 "},
        {"kestrane fdadimini_jm47 e1", "8:0 "}, {"kestrane fdadimini_jm47 e2", "8:0 "},
        {"kestrane turn_jm47 e0", "18:2 "},     {"kestrane turn_jm47 e1", "18:2 "},
        {"kestrane turn_jm47 e2", "18:2 "},     {"kestrane compass_jm47 e1", "12:1 "},
    };
    EXPECT_EQ(seen, expected);
}

}  // namespace
