// The module's records as any host sees them: registry, element chains,
// mouse tables, the field table and the diagnostic gauge.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <set>
#include <string>

#include "host/host.h"

namespace {

using namespace kestrane;
using kestrane::host::Host;

class Frame : public ::testing::Test {
protected:
    Host host;
    void SetUp() override { ASSERT_TRUE(host.ok()) << host.error(); }
};

TEST_F(Frame, LinkageRecordsMatchTheHostContract) {
    void* h = dlopen(host::default_module_path().c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(h, nullptr);
    auto* linkage = static_cast<ModuleLinkage*>(dlsym(h, "Linkage"));
    auto* imports = static_cast<ModuleImports*>(dlsym(h, "ImportTable"));
    ASSERT_NE(linkage, nullptr);
    ASSERT_NE(imports, nullptr);
    EXPECT_EQ(linkage->module_id, 0x13u);
    EXPECT_EQ(linkage->version, 0x900u);
    EXPECT_NE(linkage->init, nullptr);
    EXPECT_NE(linkage->deinit, nullptr);
    EXPECT_EQ(linkage->gauges[219], nullptr);
    EXPECT_EQ(imports->entries[0].id, 0xFu);
    EXPECT_EQ(imports->entries[1].id, 0u);
    EXPECT_EQ(imports->entries[1].ptr, nullptr);
    dlclose(h);
}

TEST_F(Frame, EveryHeaderFollowsTheCommonLayout) {
    ASSERT_EQ(host.gauge_count(), 219);
    std::set<std::string> names;
    int without_callback = 0;
    GaugeHeader* first = host.gauge(0);
    for (int i = 0; i < 219; ++i) {
        GaugeHeader* g = host.gauge(i);
        SCOPED_TRACE(g->name);
        EXPECT_EQ(g->version, 0x320u);
        EXPECT_TRUE(names.insert(g->name).second) << "duplicate name";
        EXPECT_GT(g->size_x_mm, 0u);
        EXPECT_EQ(g->size_y_mm, 0u);
        // the seven shared routines
        EXPECT_EQ(g->query, first->query);
        EXPECT_EQ(g->install, first->install);
        EXPECT_EQ(g->initialize, first->initialize);
        EXPECT_EQ(g->update, first->update);
        EXPECT_EQ(g->generate, first->generate);
        EXPECT_EQ(g->draw, first->draw);
        EXPECT_EQ(g->kill, first->kill);
        ASSERT_NE(g->elements, nullptr);
        EXPECT_EQ(g->elements[1], nullptr) << "the element list holds e0 alone";
        Element* e0 = g->elements[0];
        ASSERT_NE(e0, nullptr);
        EXPECT_EQ(e0->kind, kStaticImage);
        // mouse table: parent first, optional tooltip, children, end of parent, end
        ASSERT_NE(g->mouse, nullptr);
        EXPECT_EQ(g->mouse[0].row, kRowParent);
        int r = 1;
        if (g->mouse[r].row == kRowTooltip) {
            EXPECT_NE(g->mouse[r].u.tooltip, nullptr);
            ++r;
        }
        while (g->mouse[r].row == kRowChild) {
            EXPECT_NE(g->mouse[r].u.handler, nullptr);
            EXPECT_EQ(g->mouse[r].event_id, 0u);
            ++r;
        }
        EXPECT_EQ(g->mouse[r].row, kRowEndParent);
        EXPECT_EQ(g->mouse[r + 1].row, kRowEnd);
        without_callback += g->callback == nullptr;
    }
    EXPECT_EQ(without_callback, 17);
    EXPECT_STREQ(host.gauge(0)->name, "testgauge2k");
    EXPECT_STREQ(host.gauge(218)->name, "kestrane panload");
}

TEST_F(Frame, ElementsBelongToTheirGaugeAndChainsEnd) {
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        SCOPED_TRACE(g->name);
        int n = Host::chain_length(g);
        ASSERT_GE(n, 1);
        ASSERT_LE(n, 64);
        for (int k = 0; k < n; ++k) {
            Element* e = Host::element(g, k);
            EXPECT_EQ(e->gauge, g);
            EXPECT_EQ(e->previous, nullptr);
            if (e->kind == kString) {
                EXPECT_EQ(e->bitmap, 0xFFFFFFFFu);
            }
        }
    }
}

const char* text_of(GaugeHeader* g, int k) {
    return Host::element(g, 0)->children[k + 1]->u.str.text;
}

TEST_F(Frame, DiagnosticLinesShowTokensThenStateWhileFlagged) {
    GaugeHeader* g = host.gauge("testgauge2k");
    host.install(g);
    host.set_token(905, 1.5);
    host.set_token(883, 2.0);
    host.set_token(884, -3.25);
    host.set_token(13, 7.0);
    host.set_field("fuel_temp_test_lo_rh", 4);
    host.set_field("fuel_temp_test_hi_rh", 1);
    host.set_field("warn_alert_code", 9);
    host.run(1);
    // six characters of "%1.6f"
    EXPECT_STREQ(text_of(g, 0), "1.5000");
    EXPECT_STREQ(text_of(g, 1), "2.0000");
    EXPECT_STREQ(text_of(g, 2), "-3.250");
    EXPECT_STREQ(text_of(g, 3), "7.0000");
    ASSERT_TRUE(host.click(g, 35, 16));
    host.run(1);
    EXPECT_STREQ(text_of(g, 0), "1.5000");
    EXPECT_STREQ(text_of(g, 1), "4.0000");
    EXPECT_STREQ(text_of(g, 2), "1.0000");
    EXPECT_STREQ(text_of(g, 3), "9.0000");
    ASSERT_TRUE(host.click(g, 0, 0));
    host.run(1);
    EXPECT_STREQ(text_of(g, 1), "2.0000");
    EXPECT_TRUE(host.events().empty());
}

TEST_F(Frame, HugeAndNanTokensStayInTheTextBuffer) {
    GaugeHeader* g = host.gauge("testgauge2k");
    host.install(g);
    host.set_token(905, 1e308);
    host.set_token(883, std::nan(""));
    host.set_token(884, -1e300);
    host.run(2);
    EXPECT_EQ(std::strlen(text_of(g, 0)), 6u);
    EXPECT_LE(std::strlen(text_of(g, 1)), 6u);
}

TEST_F(Frame, ClicksOutsideTheBoxOrWithOtherButtonsHitNothing) {
    GaugeHeader* g = host.gauge("testgauge2k");
    EXPECT_EQ(Host::hit(g, 36, 0, kMouseLeft), nullptr);
    EXPECT_EQ(Host::hit(g, 0, 17, kMouseLeft), nullptr);
    EXPECT_EQ(Host::hit(g, 5, 5, kMouseRight), nullptr);
    EXPECT_NE(Host::hit(g, 5, 5, kMouseLeft), nullptr);
}

TEST_F(Frame, OtherServiceIdsChangeNothing) {
    // Every gauge gets every service id except 2, 6 and 12; the state and
    // every element's hidden bit must stay as loaded.
    const FieldTable* t = host.field_table();
    std::vector<u8> before(static_cast<u8*>(t->state), static_cast<u8*>(t->state) + t->state_size);
    std::vector<u32> flags;
    for (int i = 0; i < host.gauge_count(); ++i)
        for (int k = 0; Host::element(host.gauge(i), k); ++k)
            flags.push_back(Host::element(host.gauge(i), k)->flags);
    for (int i = 0; i < host.gauge_count(); ++i) {
        GaugeHeader* g = host.gauge(i);
        if (!g->callback)
            continue;
        for (u32 s = 0; s < 32; ++s)
            if (s != 2 && s != 6 && s != 12)
                g->callback(g, s, 0xDEADBEEF);
    }
    EXPECT_EQ(std::memcmp(before.data(), t->state, t->state_size), 0);
    std::size_t at = 0;
    for (int i = 0; i < host.gauge_count(); ++i)
        for (int k = 0; Host::element(host.gauge(i), k); ++k)
            EXPECT_EQ(Host::element(host.gauge(i), k)->flags, flags[at++]);
    EXPECT_TRUE(host.events().empty());
}

TEST(FrameUnloaded, HostCallsBeforeTheServiceTableDoNothing) {
    void* h = dlopen(host::default_module_path().c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(h, nullptr);
    auto* linkage = static_cast<ModuleLinkage*>(dlsym(h, "Linkage"));
    // The shared header routines and every callback run with no table written.
    GaugeHeader* g = linkage->gauges[0];
    g->query();
    g->install(1);
    g->initialize();
    g->update();
    g->generate(0);
    g->draw();
    g->kill();
    for (int i = 0; linkage->gauges[i]; ++i)
        if (linkage->gauges[i]->callback)
            linkage->gauges[i]->callback(linkage->gauges[i], 6, 0);
    Element* line = g->elements[0]->children[1];
    EXPECT_EQ(line->u.str.callback(line), 0.0);
    EXPECT_STREQ(line->u.str.text, "0.0000");
    dlclose(h);
}

TEST_F(Frame, FieldTableCoversTheStateRecord) {
    const FieldTable* t = host.field_table();
    ASSERT_NE(t, nullptr);
    EXPECT_GE(t->count, 400u);
    std::set<std::string> names;
    std::vector<bool> used(t->state_size, false);
    const int sizes[] = {1, 1, 2, 2, 4, 4, 4, 8};
    for (u32 i = 0; i < t->count; ++i) {
        const FieldInfo& f = t->fields[i];
        EXPECT_TRUE(names.insert(f.name).second) << f.name;
        ASSERT_LE(f.offset + sizes[f.type], t->state_size) << f.name;
        for (int b = 0; b < sizes[f.type]; ++b) {
            EXPECT_FALSE(used[f.offset + b]) << f.name << " overlaps another field";
            used[f.offset + b] = true;
        }
        EXPECT_EQ(host.read_field(f), f.load_value) << f.name;
    }
}

TEST_F(Frame, ReloadRestoresEverything) {
    GaugeHeader* g = host.gauge("testgauge2k");
    host.install(g);
    host.click(g, 1, 1);
    host.set_field("elec_master_sw", 0);
    host.set_token(905, 3);
    host.set_named("forward_door_open", 1);
    host.run(3);
    ASSERT_TRUE(host.reload());
    g = host.gauge("testgauge2k");
    EXPECT_EQ(*host.field_value("elec_master_sw"), 2);
    EXPECT_EQ(host.token(1), 0);
    EXPECT_EQ(host.token(905), 0);
    EXPECT_FALSE(host.named("forward_door_open").has_value());
    EXPECT_TRUE(host.installed_gauges().empty());
    // the diagnostic flag is gauge-private: a fresh load starts with it clear
    host.install(g);
    host.set_token(883, 2);
    host.run(1);
    EXPECT_STREQ(text_of(g, 1), "2.0000");
}

}  // namespace

// The host draws from a plan built at install; removing gauges from the middle
// of it must leave every other gauge drawn as if they had never been there.
TEST(HostPlan, RemovedGaugesLeaveTheOthersDrawnAsWithout) {
    const std::set<std::string> gone = {"kestrane fuel_pumps_lh_jm47", "kestrane ias_jm47",
                                        "kestrane toggle_pan_tadg"};
    // one host at a time: hosts of one process share the loaded module
    auto drawn = [&](bool install_then_remove) {
        std::vector<std::vector<double>> values;
        Host h;
        EXPECT_TRUE(h.ok());
        for (int i = 0; i < h.gauge_count(); ++i)
            if (install_then_remove || gone.count(h.gauge(i)->name) == 0)
                h.install(h.gauge(i));
        if (install_then_remove)
            for (const std::string& name : gone) {
                EXPECT_NE(h.gauge(name), nullptr) << name;
                h.remove(h.gauge(name));
            }
        h.set_field("panel_load_choice", 2);
        h.run(60);
        for (GaugeHeader* g : h.installed_gauges()) {
            std::vector<double> v;
            if (const auto* slots = h.drawn_slots(g))
                for (const auto& d : *slots)
                    v.insert(v.end(), {static_cast<double>(d.have), d.value[0], d.value[1], d.value[2]});
            values.push_back(std::move(v));
        }
        return values;
    };
    const auto never = drawn(false);
    const auto removed = drawn(true);
    ASSERT_EQ(never.size(), removed.size());
    for (std::size_t i = 0; i < never.size(); ++i)
        EXPECT_EQ(never[i], removed[i]) << "gauge " << i;
}

// Named variables and calculator answers are found by the pointer last seen,
// but always by text: a buffer reused for another name gets the other's value.
TEST_F(Frame, ServiceLookupsFollowTheTextNotThePointer) {
    auto calc = [&](const char* code) {
        f64 r = -1.0;
        host.svc_calc(code, &r);
        return r;
    };
    char buf[32] = "(A:ONE,bool)";
    EXPECT_EQ(calc(buf), 0.0);  // no answer yet
    host.set_calc("(A:ONE,bool)", 1.0);
    EXPECT_EQ(calc(buf), 1.0);  // a new answer replaces a remembered "none"
    host.set_calc("(A:ONE,bool)", 2.0);
    EXPECT_EQ(calc(buf), 2.0);
    std::strcpy(buf, "(A:TWO,bool)");
    EXPECT_EQ(calc(buf), 0.0);
    host.set_calc("(A:TWO,bool)", 3.0);
    EXPECT_EQ(calc(buf), 3.0);

    char name[32] = "first_name";
    const u32 first = host.svc_register_named(name);
    host.svc_set_named(first, 4.0);
    std::strcpy(name, "second_name");
    const u32 second = host.svc_register_named(name);
    EXPECT_NE(first, second);
    EXPECT_EQ(host.svc_get_named(second), 0.0);
    std::strcpy(name, "first_name");
    EXPECT_EQ(host.svc_register_named(name), first);
    EXPECT_EQ(host.svc_get_named(first), 4.0);
}
