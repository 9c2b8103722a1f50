// Loading the module through the platform layer: what a bad path or a
// library that is not the module gives.
#include <gtest/gtest.h>

#include "host/host.h"
#include "host/platform/library.h"

namespace {

using namespace kestrane::host;

TEST(Platform, MissingLibraryIsAnErrorWithItsPath) {
    std::string why;
    EXPECT_EQ(platform::load_library("/nonexistent/libkestrane.so", why), nullptr);
    EXPECT_FALSE(why.empty());
    Host host("/nonexistent/libkestrane.so");
    EXPECT_FALSE(host.ok());
    EXPECT_EQ(host.error().rfind("cannot load module /nonexistent/libkestrane.so: ", 0), 0u) << host.error();
    EXPECT_EQ(host.gauge_count(), 0);
}

TEST(Platform, LibraryWithoutTheModuleRecordsIsRefused) {
    Host host("libm.so.6");
    EXPECT_FALSE(host.ok());
    EXPECT_NE(host.error().find("exports no Linkage or ImportTable"), std::string::npos) << host.error();
}

TEST(Platform, SymbolsOfTheModule) {
    std::string why;
    void* lib = platform::load_library(default_module_path(), why);
    ASSERT_NE(lib, nullptr) << why;
    EXPECT_NE(platform::find_symbol(lib, "Linkage"), nullptr);
    EXPECT_NE(platform::find_symbol(lib, "KestraneSounds"), nullptr);
    EXPECT_EQ(platform::find_symbol(lib, "NoSuchRecord"), nullptr);
    platform::unload_library(lib);
}

}  // namespace
