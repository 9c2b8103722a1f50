// The module's bitmaps: every image an element names is in the table beside
// the generator and embedded in the library as a BMP of the table's size,
// and the table holds nothing that no element names.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "host/host.h"

namespace {

using namespace kestrane;
using kestrane::host::Host;

struct Size {
    int w, h;
    std::string role, colour, params;
};

std::map<u32, Size> read_table() {
    std::map<u32, Size> table;
    std::ifstream in(KESTRANE_SOURCE_DIR "/tools/bitmaps/bitmaps.tsv");
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream f(line);
        u32 id = 0;
        std::string gauge;
        Size s{};
        f >> id;
        f.ignore(1);
        std::getline(f, gauge, '\t');
        f >> s.w >> s.h;
        f.ignore(1);
        std::string caption;
        std::getline(f, s.role, '\t');
        std::getline(f, caption, '\t');
        std::getline(f, s.colour, '\t');
        std::getline(f, s.params, '\t');
        EXPECT_TRUE(table.emplace(id, s).second) << "bitmap " << id << " listed twice";
    }
    return table;
}

i32 le32(const u8* p) {
    return static_cast<i32>(static_cast<u32>(p[0]) | static_cast<u32>(p[1]) << 8 |
                            static_cast<u32>(p[2]) << 16 | static_cast<u32>(p[3]) << 24);
}

class Bitmaps : public ::testing::Test {
protected:
    Host host;
    void* lib = nullptr;
    const BitmapTable* embedded = nullptr;
    void SetUp() override {
        ASSERT_TRUE(host.ok()) << host.error();
        lib = dlopen(kestrane::host::default_module_path().c_str(), RTLD_NOW);
        ASSERT_NE(lib, nullptr) << dlerror();
        embedded = static_cast<const BitmapTable*>(dlsym(lib, "KestraneBitmaps"));
        ASSERT_NE(embedded, nullptr);
    }
    void TearDown() override {
        if (lib != nullptr)
            dlclose(lib);
    }
    std::set<u32> named() {
        std::set<u32> ids;
        for (int i = 0; i < host.gauge_count(); ++i)
            Host::for_each_element(host.gauge(i), [&](Element* e, const std::string&) {
                if (e->kind != kString)
                    ids.insert(e->bitmap);
            });
        return ids;
    }
};

TEST_F(Bitmaps, TableListsExactlyTheNamedImages) {
    std::map<u32, Size> table = read_table();
    std::set<u32> ids = named();
    for (u32 id : ids)
        EXPECT_TRUE(table.count(id)) << "bitmap " << id << " is named by an element but has no table line";
    for (const auto& [id, size] : table)
        EXPECT_TRUE(ids.count(id)) << "bitmap " << id << " is in the table but no element names it";
}

TEST_F(Bitmaps, EveryImageIsEmbeddedAsA24BitBmpOfItsSize) {
    std::map<u32, Size> table = read_table();
    ASSERT_EQ(embedded->count, table.size());
    std::set<u32> seen;
    for (u32 i = 0; i < embedded->count; ++i) {
        const u32 id = embedded->ids[i];
        const u8* d = embedded->data[i];
        SCOPED_TRACE("bitmap " + std::to_string(id));
        ASSERT_TRUE(table.count(id));
        EXPECT_TRUE(seen.insert(id).second);
        ASSERT_GE(embedded->sizes[i], 54u);
        EXPECT_EQ(std::memcmp(d, "BM", 2), 0);
        EXPECT_EQ(static_cast<u32>(le32(d + 2)), embedded->sizes[i]);
        EXPECT_EQ(le32(d + 18), table[id].w);
        EXPECT_EQ(le32(d + 22), table[id].h);
        EXPECT_EQ(d[28], 24);
        const u32 row = (static_cast<u32>(table[id].w) * 3 + 3) & ~3u;
        EXPECT_EQ(embedded->sizes[i], 54 + row * static_cast<u32>(table[id].h));
    }
}

// One bitmap is one picture: gauges that share an image number must use it
// the same way. Independent numberings of our own artwork once overlapped,
// and the altitude selector drew the autopilot's lights as its digits.
TEST_F(Bitmaps, ASharedImageIsUsedTheSameWayByEveryGauge) {
    struct Use {
        std::string gauge;
        u32 kind;
        i32 ref_x, ref_y;
    };
    std::map<u32, Use> first;
    int shared = 0;
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        Host::for_each_element(g, [&](Element* e, const std::string& label) {
            if (e->kind == kString)
                return;
            // a background may come back as an icon
            const u32 kind = e->kind == kStaticImage ? u32{kIcon} : e->kind;
            const bool pivots = kind == kNeedle || kind == kSprite;
            const Use use{g->name, kind, pivots ? e->ref_x : 0, pivots ? e->ref_y : 0};
            auto [it, added] = first.emplace(e->bitmap, use);
            if (added || it->second.gauge == use.gauge)
                return;
            ++shared;
            EXPECT_TRUE(it->second.kind == use.kind && it->second.ref_x == use.ref_x &&
                        it->second.ref_y == use.ref_y)
                << "bitmap " << e->bitmap << ": " << it->second.gauge << " and " << use.gauge << " e" << label
                << " use it differently";
        });
    }
    EXPECT_GT(shared, 50);  // the full instruments and their small copies, twin panels
}

// A needle's value table gives points of the dial in gauge pixels, so the
// scale wraps around the needle's pivot. A table drawn in a frame of its own
// sees its points from far off, under a narrow angle, and its needle points
// off the dial (the brake gauge once shared one table between six pivots).
TEST_F(Bitmaps, NeedleScalesWrapAroundTheirPivots) {
    int scales = 0;
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        Host::for_each_element(g, [&](Element* e, const std::string& label) {
            if (e->kind != kNeedle || e->u.needle.table == nullptr || e->u.needle.table_count < 2)
                return;
            std::vector<double> angles;
            bool all_zero = true;
            for (u32 k = 0; k < e->u.needle.table_count; ++k) {
                const NeedlePoint& p = e->u.needle.table[k];
                all_zero = all_zero && p.x == 0 && p.y == 0;
                angles.push_back(std::atan2(p.y - e->y, p.x - e->x) * 180.0 / M_PI);
            }
            if (all_zero)
                return;  // the value is the angle itself (compass cards and their needles)
            std::sort(angles.begin(), angles.end());
            double widest_gap = 360.0 + angles.front() - angles.back();
            for (std::size_t k = 1; k < angles.size(); ++k)
                widest_gap = std::max(widest_gap, angles[k] - angles[k - 1]);
            ++scales;
            EXPECT_GE(360.0 - widest_gap, 65.0)
                << g->name << " e" << label << ": the scale is not around the pivot";
        });
    }
    EXPECT_GT(scales, 100);
}

struct Pixel {
    int b, g, r;
    bool black() const { return b == 0 && g == 0 && r == 0; }
};

// (x, y) from the top left of a bottom-up 24-bit BMP.
Pixel pixel(const u8* bmp, int x, int y) {
    const int w = le32(bmp + 18), h = le32(bmp + 22);
    const int row = (w * 3 + 3) & ~3;
    const u8* p = bmp + 54 + (h - 1 - y) * row + 3 * x;
    return {p[0], p[1], p[2]};
}

// What the host sees: black is transparent, so panels must not use it, and
// needles, lamps and dials must show where their declarations put them.
TEST_F(Bitmaps, ImagesShowTheirRoleWhereTheGaugesLookForIt) {
    std::map<u32, Size> table = read_table();
    int needles = 0, dials = 0, lamps = 0;
    for (u32 i = 0; i < embedded->count; ++i) {
        const Size& s = table[embedded->ids[i]];
        const u8* d = embedded->data[i];
        SCOPED_TRACE("bitmap " + std::to_string(embedded->ids[i]) + " " + s.role);
        if (s.role == "panel" || s.role == "dial" || s.role == "panel-night") {
            int holes = 0;
            for (int y = 0; y < s.h; ++y)
                for (int x = 0; x < s.w; ++x)
                    holes += pixel(d, x, y).black();
            EXPECT_EQ(holes, 0) << "a background shows the host's transparent colour";
        }
        if (s.role == "needle") {
            int rx = 0, ry = 0;
            ASSERT_EQ(std::sscanf(s.params.c_str(), "%d,%d", &rx, &ry), 2);
            if (rx >= 0 && ry >= 0 && rx < s.w && ry < s.h) {
                EXPECT_FALSE(pixel(d, rx, ry).black()) << "nothing drawn at the pivot";
                EXPECT_FALSE(pixel(d, s.w - 3, ry).black()) << "the needle does not reach its tip";
                ++needles;
            }
            EXPECT_TRUE(pixel(d, s.w - 1, 0).black() || ry == 0) << "a needle's corner is not transparent";
        }
        if (s.role == "lamp") {
            const Pixel c = pixel(d, 2, 2);
            const bool lit = c.r + c.g + c.b > 300;
            if (s.colour == "red" && lit) {
                EXPECT_TRUE(c.r > 200 && c.g < 80 && c.b < 80);
            }
            if (s.colour == "amber" && lit) {
                EXPECT_TRUE(c.r > 200 && c.g > 120 && c.b < 60);
            }
            ++lamps;
        }
        if (s.role == "dial") {
            // a graduation at every point of a needle's value table inside the face
            std::istringstream scales(s.params);
            std::string scale;
            while (std::getline(scales, scale, ';')) {
                std::istringstream points(scale.substr(scale.find(':') + 1));
                int x = 0, y = 0;
                double v = 0;
                char comma = 0;
                while (points >> x >> comma >> y >> comma >> v) {
                    if (x < 2 || y < 2 || x >= s.w - 2 || y >= s.h - 2)
                        continue;
                    const Pixel p = pixel(d, x, y);
                    EXPECT_GT(p.r + p.g + p.b, 300) << "no graduation at (" << x << "," << y << ") for " << v;
                }
            }
            ++dials;
        }
    }
    EXPECT_GT(needles, 50);
    EXPECT_GT(dials, 40);
    EXPECT_GT(lamps, 30);
}

}  // namespace
