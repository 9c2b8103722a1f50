// panel.cfg reader: what it accepts, where it points at a fault, and the
// panel folder's own file against the module.
#include "host/panel/panel_cfg.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "host/host.h"
#include "host/panel/gauge_size.h"

namespace {

using namespace kestrane::host;

// Two gauges, 100x50 and 20x20.
const panel::SizeOf kSizes = [](std::string_view name) -> std::optional<panel::Size> {
    if (name == "kestrane big")
        return panel::Size{100, 50};
    if (name == "small")
        return panel::Size{20, 20};
    return std::nullopt;
};

const char* const kHead =
    "[Window Titles]\n"                            // 1
    "Window00=Main\n"                              // 2
    "\n"                                           // 3
    "[Window00]\n"                                 // 4
    "size_mm=200,100\n"                            // 5
    "visible=1\n"                                  // 6
    "ident=MAIN_PANEL\n"                           // 7
    "gauge00=kestrane!kestrane big,0,0,100,50\n";  // 8

// Line and message of the fault in kHead + `tail`, or line 0 when accepted.
panel::Error fault(const std::string& tail) {
    panel::Error e;
    if (panel::read(std::string(kHead) + tail, kSizes, e))
        return {};
    return e;
}

TEST(PanelCfg, ReadsWindowsAndGaugePlacements) {
    panel::Error e;
    const auto p = panel::read(std::string(kHead) +
                                   "gauge01=small,100,0 // default size\r\n"
                                   "gauge02=kestrane!small,120,0,40\n"
                                   "gauge03=kestrane big,0,50,50\n"
                                   "[Window01]\nsize_mm=20,20\nident=10030\ngauge00=small,0,0,20,20\n",
                               kSizes, e);
    ASSERT_TRUE(p) << e.line << ": " << e.message;
    ASSERT_EQ(p->windows.size(), 2u);
    const panel::Window& w = p->windows[0];
    EXPECT_EQ(w.title, "Main");
    EXPECT_EQ(w.ident, "MAIN_PANEL");
    EXPECT_TRUE(w.visible);
    EXPECT_FALSE(p->windows[1].visible);
    ASSERT_EQ(w.gauges.size(), 4u);
    EXPECT_EQ(w.gauges[0].name, "kestrane big");
    // Omitted sizes: the default, or the default height scaled with a given width.
    EXPECT_EQ(w.gauges[1].w, 20);
    EXPECT_EQ(w.gauges[1].h, 20);
    EXPECT_EQ(w.gauges[2].h, 40);
    EXPECT_EQ(w.gauges[3].h, 25);
    EXPECT_EQ(w.gauges[3].line, 11);
}

TEST(PanelCfg, GaugesTouchingEdgesAndEachOtherAreAccepted) {
    EXPECT_EQ(fault("gauge01=small,100,80,20,20\ngauge02=small,180,0,20,100\n").line, 0);
}

TEST(PanelCfg, RejectsUnknownSectionsAndKeys) {
    EXPECT_EQ(fault("[Sound]\n").line, 9);
    EXPECT_EQ(fault("[Window01\n").line, 9);
    EXPECT_EQ(fault("window_colour=1\n").line, 9);
    EXPECT_EQ(fault("[Window00]\nsize_mm=10,10\n").line, 9);  // twice
    EXPECT_EQ(fault("[Window Titles]\n").line, 9);
    EXPECT_EQ(fault("[Window01]\nsize_mm=10,10\nident=MAIN_PANEL\n").line, 11);
    // Views are accepted and not read.
    EXPECT_EQ(fault("[Views]\nVIEW_FORWARD_DIR=0,0,0\n").line, 0);
}

TEST(PanelCfg, RejectsGaugesTheModuleDoesNotHave) {
    const panel::Error e = fault("gauge01=kestrane!nosuch,100,0\n");
    EXPECT_EQ(e.line, 9);
    EXPECT_NE(e.message.find("nosuch"), std::string::npos);
    EXPECT_EQ(fault("gauge01=fs9gps!small,100,0\n").line, 9);    // another module's file
    EXPECT_EQ(fault("gauge01=kestrane!Small,100,0\n").line, 9);  // names are exact
}

TEST(PanelCfg, RejectsMalformedLines) {
    for (const char* bad :
         {"gauge01=small\n", "gauge01=small,1\n", "gauge01=small,1,2,3,4,5\n", "gauge01=small,1x,0\n",
          "gauge01=small,120,0,0,20\n", "gauge01=small,,0\n", "gauge01=small,99999999999999999999,0\n",
          "gauge01=kestrane!,120,0\n", "gauge00=small,120,0\n", "just text\n", "=1\n", "size_mm=200\n",
          "visible=yes\n", "ident=10 30\n"}) {
        SCOPED_TRACE(bad);
        EXPECT_EQ(fault(bad).line, 9);
    }
    panel::Error e;
    EXPECT_FALSE(panel::read("gauge00=small,0,0\n", kSizes, e));  // before any section
    EXPECT_EQ(e.line, 1);
    EXPECT_FALSE(panel::read("[Window00]\ngauge00=small,0,0\n", kSizes, e));  // no size
    EXPECT_EQ(e.line, 1);
    EXPECT_FALSE(panel::read("", kSizes, e));
}

TEST(PanelCfg, RejectsGaugesOutsideTheirWindow) {
    EXPECT_EQ(fault("gauge01=small,181,0\n").line, 9);
    EXPECT_EQ(fault("gauge01=small,0,81\n").line, 9);
    EXPECT_EQ(fault("gauge01=small,-1,60\n").line, 9);
    // The window's size may come after its gauges: checked at the section's end.
    panel::Error e;
    EXPECT_FALSE(panel::read("[Window00]\ngauge00=small,0,0\nsize_mm=10,10\n", kSizes, e));
    EXPECT_EQ(e.line, 2);
}

TEST(PanelCfg, RejectsOverlapNamingBothGauges) {
    const panel::Error e = fault("gauge01=small,99,49\n");
    EXPECT_EQ(e.line, 9);
    EXPECT_NE(e.message.find("line 8"), std::string::npos);
    EXPECT_EQ(fault("gauge01=small,150,0\ngauge02=kestrane big,100,19,60,10\n").line, 10);
    // Gauges of different windows never overlap.
    EXPECT_EQ(fault("[Window01]\nsize_mm=100,50\ngauge00=kestrane big,0,0\n").line, 0);
}

// The panel folder's panel.cfg: every gauge once, the sound player's and the
// panel-load sequence's gauges on windows open at load, a window per ident.
TEST(ShippedPanelCfg, PlacesEveryGaugeOnce) {
    Host host;
    ASSERT_TRUE(host.ok()) << host.error();
    std::ifstream in(std::string(KESTRANE_SOURCE_DIR) + "/panel/panel.cfg");
    std::ostringstream text;
    text << in.rdbuf();
    panel::Error e;
    const auto p = panel::read(text.str(), panel::registry_sizes(host), e);
    ASSERT_TRUE(p) << e.line << ": " << e.message;

    std::map<std::string, int> uses;
    std::set<std::string> open_at_load, idents;
    for (const panel::Window& w : p->windows) {
        idents.insert(w.ident);
        for (const panel::Placed& g : w.gauges) {
            ++uses[g.name];
            if (w.visible)
                open_at_load.insert(g.name);
        }
    }
    for (int i = 0; i < host.gauge_count(); ++i)
        EXPECT_EQ(uses[host.gauge(i)->name], 1) << host.gauge(i)->name;
    EXPECT_EQ(uses.size(), static_cast<std::size_t>(host.gauge_count()));
    EXPECT_TRUE(open_at_load.count("kestrane toggle_pan_tadg"));
    EXPECT_TRUE(open_at_load.count("kestrane eng2_extinct_jm47"));
    for (const char* ident : {"10030", "10040", "10045", "10050", "10055", "10060", "10070", "10080", "10090",
                              "10100", "10110", "10120", "10140", "10150", "10160", "10510", "10520"})
        EXPECT_TRUE(idents.count(ident)) << ident;
}

}  // namespace
