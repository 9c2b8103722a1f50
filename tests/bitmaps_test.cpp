// The module's bitmaps: every image an element names is in the table beside
// the generator and embedded in the library as a BMP of the table's size,
// and the table holds nothing that no element names.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "host/host.h"

namespace {

using namespace kestrane;
using kestrane::host::Host;

struct Size {
    int w, h;
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

}  // namespace
