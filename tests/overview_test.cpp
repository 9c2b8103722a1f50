// The overview panel's small instruments are second copies of the full ones:
// the same images where they are, the same boxes with the same handlers, and
// only the listed images left out.
#include <gtest/gtest.h>

#include "host/host.h"

namespace {

using namespace kestrane;
using kestrane::host::Host;

class SmallInstruments : public ::testing::Test {
protected:
    Host host;
    void SetUp() override { ASSERT_TRUE(host.ok()) << host.error(); }

    // The first `n` images of both gauges are drawn alike. Value callbacks
    // may differ (the small ones do not clamp); their tables and limits not.
    void same_images(const char* small, const char* full, int n) {
        GaugeHeader* s = host.gauge(small);
        GaugeHeader* f = host.gauge(full);
        ASSERT_NE(s, nullptr);
        ASSERT_NE(f, nullptr);
        for (int k = 0; k < n; ++k) {
            SCOPED_TRACE(::testing::Message() << "e" << k);
            const Element* a = Host::element(s, k);
            const Element* b = Host::element(f, k);
            ASSERT_NE(a, nullptr);
            ASSERT_NE(b, nullptr);
            EXPECT_EQ(a->kind, b->kind);
            EXPECT_EQ(a->bitmap, b->bitmap);
            EXPECT_EQ(a->x, b->x);
            EXPECT_EQ(a->y, b->y);
            EXPECT_EQ(a->ref_x, b->ref_x);
            EXPECT_EQ(a->ref_y, b->ref_y);
            EXPECT_EQ(a->flags, b->flags);
            EXPECT_EQ(a->failures == nullptr, b->failures == nullptr);
            if (a->failures && b->failures) {
                EXPECT_EQ(a->failures[0].key, b->failures[0].key);
                EXPECT_EQ(a->failures[0].action, b->failures[0].action);
            }
            if (a->kind == kNeedle) {
                EXPECT_EQ(a->u.needle.table, b->u.needle.table);
                EXPECT_EQ(a->u.needle.table_count, b->u.needle.table_count);
                EXPECT_EQ(a->u.needle.rate, b->u.needle.rate);
                EXPECT_EQ(a->u.needle.callback == nullptr, b->u.needle.callback == nullptr);
            }
            if (a->kind == kMovingImage) {
                EXPECT_EQ(a->u.moving.min_y, b->u.moving.min_y);
                EXPECT_EQ(a->u.moving.max_y, b->u.moving.max_y);
                EXPECT_EQ(a->u.moving.max_x, b->u.moving.max_x);
            }
            if (a->kind == kSprite) {
                EXPECT_EQ(a->u.sprite.texture_cx, b->u.sprite.texture_cx);
                EXPECT_EQ(a->u.sprite.texture_cy, b->u.sprite.texture_cy);
                EXPECT_EQ(a->u.sprite.callback_rot == nullptr, b->u.sprite.callback_rot == nullptr);
            }
        }
        EXPECT_EQ(Host::chain_length(s), n);
    }

    // The first `n` boxes are the same, with the very same handlers.
    void same_boxes(const char* small, const char* full, int n) {
        const MouseRect* a = host.gauge(small)->mouse;
        const MouseRect* b = host.gauge(full)->mouse;
        EXPECT_EQ(a[0].help_id, b[0].help_id);
        int count = 0;
        for (int r = 1; a[r].row == kRowChild; ++r) {
            SCOPED_TRACE(::testing::Message() << "box " << r);
            ASSERT_EQ(b[r].row, kRowChild);
            EXPECT_EQ(a[r].x, b[r].x);
            EXPECT_EQ(a[r].y, b[r].y);
            EXPECT_EQ(a[r].w, b[r].w);
            EXPECT_EQ(a[r].h, b[r].h);
            EXPECT_EQ(a[r].cursor, b[r].cursor);
            EXPECT_EQ(a[r].flags, b[r].flags);
            EXPECT_EQ(a[r].u.handler, b[r].u.handler);
            ++count;
        }
        EXPECT_EQ(count, n);
    }
};

TEST_F(SmallInstruments, RadioAltimeterIsTheWholeInstrumentOnAWiderGauge) {
    same_images("kestrane raltmini_jm47", "kestrane ralt_jm47", 8);
    same_boxes("kestrane raltmini_jm47", "kestrane ralt_jm47", 7);
    EXPECT_EQ(host.gauge("kestrane raltmini_jm47")->size_x_mm, 228u);
}

TEST_F(SmallInstruments, AirspeedKeepsDialNeedlesAndSixBoxes) {
    same_images("kestrane iasmini_jm47", "kestrane ias_jm47", 5);
    same_boxes("kestrane iasmini_jm47", "kestrane ias_jm47", 6);
    EXPECT_EQ(host.gauge("kestrane iasmini_jm47")->size_x_mm, 206u);
}

TEST_F(SmallInstruments, AdiLeavesOutTheLitImagesAndHasNoBoxes) {
    same_images("kestrane fdadimini_jm47", "kestrane fdadi_jm47", 9);
    same_boxes("kestrane fdadimini_jm47", "kestrane fdadi_jm47", 0);
    EXPECT_EQ(host.gauge("kestrane fdadimini_jm47")->size_x_mm, 188u);
}

TEST_F(SmallInstruments, HsiIsTheWholeInstrument) {
    same_images("kestrane hsimini_jm47", "kestrane hsi_jm47", 30);
    same_boxes("kestrane hsimini_jm47", "kestrane hsi_jm47", 9);
    EXPECT_EQ(host.gauge("kestrane hsimini_jm47")->size_x_mm, 210u);
}

}  // namespace
