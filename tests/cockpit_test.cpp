// The cockpit server's parts that need no browser: the page's messages, the
// per-cycle state the page is sent, the assets, WAV files, and the held
// mouse button of the host.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "frame/wave.h"
#include "host/cockpit/assets.h"
#include "host/cockpit/protocol.h"
#include "host/cockpit/state.h"
#include "host/host.h"
#include "host/panel/gauge_size.h"

namespace {

using namespace kestrane;
using namespace kestrane::host;
using namespace kestrane::host::cockpit;

TEST(CockpitProtocol, AcceptsTheMessagesThePageSends) {
    Request r;
    std::string why;
    ASSERT_TRUE(parse_request(R"({"t":"down","g":17,"x":10,"y":12})", r, why)) << why;
    EXPECT_EQ(r.kind, Request::Down);
    EXPECT_EQ(r.gauge, 17);
    EXPECT_EQ(r.x, 10);
    EXPECT_EQ(r.y, 12);
    ASSERT_TRUE(parse_request(R"({"t":"up"})", r, why));
    EXPECT_EQ(r.kind, Request::Up);
    ASSERT_TRUE(parse_request(R"({"t":"window","ident":"10100","open":false})", r, why));
    EXPECT_EQ(r.ident, "10100");
    EXPECT_FALSE(r.open);
    ASSERT_TRUE(parse_request(R"({"t":"speed","v":"max"})", r, why));
    EXPECT_EQ(r.speed, kMaxSpeed);
    ASSERT_TRUE(parse_request(R"({"t":"speed","v":"pause"})", r, why));
    EXPECT_EQ(r.speed, 0);
}

TEST(CockpitProtocol, RejectsAnythingElse) {
    const char* bad[] = {
        "",
        "nonsense",
        "[1,2]",
        R"({"g":1,"x":1,"y":1})",                       // no type
        R"({"t":"down","g":17})",                       // no position
        R"({"t":"down","g":17,"x":1.5,"y":1})",         // not a whole number
        R"({"t":"down","g":-1,"x":1,"y":1})",           // no such gauge index
        R"({"t":"move","g":17,"x":1e12,"y":1})",        // far outside any gauge
        R"({"t":"right","g":"17","x":1,"y":1})",        // a string for a number
        R"({"t":"window","ident":10100,"open":true})",  // ident as a number
        R"({"t":"window","ident":"10100"})",
        R"({"t":"speed","v":"3"})",
        R"({"t":"speed","v":4})",
        R"({"t":"reload"})",
    };
    for (const char* text : bad) {
        Request r;
        std::string why;
        EXPECT_FALSE(parse_request(text, r, why)) << text;
        EXPECT_FALSE(why.empty()) << text;
    }
    Request r;
    std::string why;
    EXPECT_FALSE(parse_request(std::string(5000, ' ') + R"({"t":"up"})", r, why));
}

TEST(CockpitWav, TheModulesWaveParserReadsWhatTheServerSends) {
    const unsigned char samples[] = {1, 2, 3, 4, 5};  // odd: one pad byte follows
    const std::string wav = wav_file(1, 11025, 8, samples, sizeof samples);
    EXPECT_EQ(wav.size(), 44u + 6u);
    WaveView view;
    ASSERT_TRUE(parse_wave(reinterpret_cast<const u8*>(wav.data()), wav.size(), view));
    EXPECT_EQ(view.data_size, 5u);
    EXPECT_EQ(view.data[4], 5);
    const auto* f = view.format;
    EXPECT_EQ(f[2] | f[3] << 8, 1);                    // channels
    EXPECT_EQ(f[4] | f[5] << 8 | f[6] << 16, 11025);   // rate
    EXPECT_EQ(f[8] | f[9] << 8 | f[10] << 16, 11025);  // bytes a second
    const std::string stereo = wav_file(2, 44100, 16, samples, 4);
    ASSERT_TRUE(parse_wave(reinterpret_cast<const u8*>(stereo.data()), stereo.size(), view));
    EXPECT_EQ(view.format[12], 4);  // block: two channels of two bytes
}

class CockpitState : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(host.ok()) << host.error();
        for (const char* name :
             {"kestrane toggle_pan_tadg", "kestrane elec_mas_sw_jm47", "kestrane setalt_jm47"})
            host.install(host.gauge(name));
    }
    Host host;
};

int count_ops(const json& d, const std::string& name, const std::string& op) {
    int n = 0;
    if (d.is_object() && d.contains("snd"))
        for (const json& s : d["snd"])
            n += s["n"] == name && s["op"] == op;
    return n;
}

TEST_F(CockpitState, SendsOnlyWhatChanged) {
    StateTracker state(host, {{"MAIN_PANEL", true}});
    host.run(2);
    state.collect();
    const json first = state.diff();
    ASSERT_TRUE(first.is_object());
    EXPECT_EQ(first["win"], json::array({"MAIN_PANEL"}));
    host.run(1);
    state.collect();
    // the master switch is at rest: nothing of it changes, no window either
    const json quiet = state.diff();
    if (quiet.is_object()) {
        EXPECT_FALSE(quiet.contains("win"));
        if (quiet.contains("el")) {
            for (const json& e : quiet["el"]) {
                EXPECT_NE(e[0], 17) << e.dump();
            }
        }
    }

    GaugeHeader* sw = host.gauge("kestrane elec_mas_sw_jm47");
    ASSERT_TRUE(host.click(sw, 30, 10));  // BATTERY to OFF
    state.collect();
    host.run(1);
    state.collect();
    const json d = state.diff();
    EXPECT_EQ(count_ops(d, "CLICK", "play"), 1);
    // e2 (OFF) shown, e3 (BATTERY) hidden: one entry each, [gauge, element, hidden, values]
    int switched = 0;
    for (const json& e : d["el"])
        if (e[0] == 17 && (e[1] == 2 || e[1] == 3)) {
            EXPECT_EQ(e[2], e[1] == 2 ? 0 : 1);
            ++switched;
        }
    EXPECT_EQ(switched, 2);
    bool master = false;
    const FieldTable* t = host.field_table();
    for (const json& f : d["fld"])
        master |= std::string(t->fields[f[0].get<int>()].name) == "elec_master_sw" && f[1] == 0;
    EXPECT_TRUE(master);
    // the full state: every element of the three gauges, the switch at OFF
    const json full = state.full();
    std::size_t elements = 0;
    for (GaugeHeader* g : host.installed_gauges())
        elements += Host::drawing_order(g).size();
    EXPECT_EQ(full["el"].size(), elements);
    for (const json& e : full["el"]) {
        if (e[0] == 17 && e[1] == 2) {
            EXPECT_EQ(e[2], 0);
        }
    }
}

TEST_F(CockpitState, EachSoundChangeOnce) {
    StateTracker state(host, {});
    host.run(1);
    state.collect();
    state.diff();
    SoundDevice& dev = host.sound_device();
    SoundBuffer* klaxon = host.sound("KLAXONCONT");
    ASSERT_NE(klaxon, nullptr);
    // a loop started on every cycle is one loop; a stop of a silent sound is not heard
    for (int i = 0; i < 3; ++i) {
        dev.play(klaxon, DSBPLAY_LOOPING);
        state.collect();
    }
    dev.set_volume(klaxon, -700);
    dev.set_volume(klaxon, -700);
    state.collect();
    json d = state.diff();
    EXPECT_EQ(count_ops(d, "KLAXONCONT", "play"), 1);
    EXPECT_EQ(count_ops(d, "KLAXONCONT", "vol"), 1);
    EXPECT_TRUE(d["snd"][0]["loop"].get<bool>());
    dev.stop(klaxon);
    dev.stop(klaxon);
    state.collect();
    d = state.diff();
    EXPECT_EQ(count_ops(d, "KLAXONCONT", "stop"), 1);
    // played once more after the stop: heard again, now once
    dev.play(klaxon, 0);
    state.collect();
    EXPECT_EQ(count_ops(state.diff(), "KLAXONCONT", "play"), 1);
    // a one-shot that ran out by itself may be played again
    SoundBuffer* click = host.sound("CLICK");
    dev.play(click, 0);
    host.run(4);  // longer than the sound
    state.collect();
    dev.play(click, 0);
    state.collect();
    EXPECT_EQ(count_ops(state.diff(), "CLICK", "play"), 2);
}

TEST_F(CockpitState, WindowsByIdentAndFieldsThatAreNotNumbers) {
    StateTracker state(host, {{"MAIN_PANEL", true}});
    EXPECT_TRUE(state.set_window("10100", true));
    EXPECT_TRUE(state.set_window("MAIN_PANEL", false));
    EXPECT_FALSE(state.set_window("ELSEWHERE", true));
    EXPECT_FALSE(state.set_window("99999999999", true));
    EXPECT_TRUE(host.window_open(10100));
    const FieldTable* t = host.field_table();
    const FieldInfo* f64_field = nullptr;
    for (u32 i = 0; i < t->count && f64_field == nullptr; ++i)
        if (t->fields[i].type == kF64)
            f64_field = &t->fields[i];
    ASSERT_NE(f64_field, nullptr);
    (void)state.diff();
    host.write_field(*f64_field, std::nan(""));
    const json d = state.diff();
    EXPECT_FALSE(d.contains("win"));  // sent with the first diff
    EXPECT_EQ(state.full()["win"], json::array({"10100"}));
    bool null_seen = false;
    for (const json& f : d["fld"])
        null_seen |= std::string(t->fields[f[0].get<int>()].name) == f64_field->name && f[1].is_null();
    EXPECT_TRUE(null_seen);
    EXPECT_NO_THROW((void)d.dump());
    // NaN stays NaN: not sent again
    const json again = state.diff();
    EXPECT_TRUE(again.is_null() || !again.contains("fld"));
}

TEST_F(CockpitState, AHeldButtonRepeatsOnlyOnRowsThatAskForIt) {
    const FieldInfo* alt = host.field("alt_alert_setting");
    GaugeHeader* knob = host.gauge("kestrane setalt_jm47");
    host.write_field(*alt, 1000);
    ASSERT_TRUE(host.press(knob, 150, 70));
    EXPECT_EQ(host.read_field(*alt), 1100);
    host.run(1);
    host.repeat_held();
    host.run(1);
    host.repeat_held();
    EXPECT_EQ(host.read_field(*alt), 1300);
    host.release();
    host.repeat_held();
    EXPECT_EQ(host.read_field(*alt), 1300);
    // the master switch's rows do not repeat: held, it turns once
    GaugeHeader* sw = host.gauge("kestrane elec_mas_sw_jm47");
    host.sound_device().clear_log();
    ASSERT_TRUE(host.press(sw, 30, 10));
    host.repeat_held();
    host.repeat_held();
    host.release();
    int clicks = 0;
    for (const SoundEvent& s : host.sound_device().log())
        clicks += s.op == SoundOp::Play && s.buffer->name == "CLICK";
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(host.press(sw, 500, 500));
    EXPECT_FALSE(host.holding());
}

TEST(CockpitAssets, ServesThePageTheBitmapsTheSoundsAndTheLayoutOnly) {
    Host host;
    ASSERT_TRUE(host.ok());
    host.install(host.gauge("kestrane toggle_pan_tadg"));
    host.install(host.gauge("kestrane hsi_jm47"));
    Assets assets;
    std::string error;
    ASSERT_TRUE(assets.load_page(KESTRANE_COCKPIT_PAGE, error)) << error;
    panel::Panel p;
    panel::Window w;
    w.ident = "MAIN_PANEL";
    w.width = 400;
    w.height = 300;
    w.gauges.push_back({"kestrane hsi_jm47", 10, 10, 210, 200, 1});
    p.windows.push_back(w);
    assets.load_module(host, p);
    ASSERT_NE(assets.find("/"), nullptr);
    EXPECT_EQ(assets.find("/")->body, assets.find("/index.html")->body);
    EXPECT_EQ(assets.find("/sounds/CLICK.wav")->type, "audio/wav");
    EXPECT_EQ(assets.find("/bitmaps/16.bmp")->body.substr(0, 2), "BM");
    for (const char* path : {"/index.html/", "/../index.html", "//index.html", "/bitmaps/17.bmp", "/bitmaps/",
                             "/sounds/CLICK", "/api", "index.html", ""})
        EXPECT_EQ(assets.find(path), nullptr) << path;
    const json layout = json::parse(assets.find("/api/layout")->body);
    const json& hsi = layout["gauges"][std::to_string(host.gauge_index("kestrane hsi_jm47"))];
    // the gauge is drawn at its background bitmap's size, stretched over its place
    EXPECT_GT(hsi["w"].get<int>(), 210);
    EXPECT_EQ(layout["windows"][0]["gauges"][0]["w"], 210);
    EXPECT_EQ(layout["fields"].size(), host.field_table()->count);
}

}  // namespace
