// The scenario runner: parsing, checks, output and exit status.
#include "host/scenario.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace {

using namespace kestrane::host;

class Scenario : public ::testing::Test {
protected:
    Host host;
    std::filesystem::path dir;

    void SetUp() override {
        ASSERT_TRUE(host.ok()) << host.error();
        dir = std::filesystem::temp_directory_path() /
              ("kestrane-scn-" + std::to_string(::getpid()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::create_directories(dir);
    }
    void TearDown() override { std::filesystem::remove_all(dir); }

    std::string write(const std::string& name, const std::string& text) {
        std::ofstream(dir / name) << text;
        return (dir / name).string();
    }
    // Runs the given files; returns the exit status and the output.
    std::pair<int, std::string> run(const std::vector<std::string>& paths) {
        std::ostringstream out;
        int status = run_paths(paths, host, out);
        return {status, out.str()};
    }
    ParseError parse_error(const std::string& text) {
        Script s;
        ParseError e;
        EXPECT_FALSE(parse_script("x.scn", text, host, s, e)) << text;
        return e;
    }
};

TEST_F(Scenario, PassingScriptExitsZeroWithTotals) {
    auto f = write("ok.scn",
                   "# comment only\n"
                   "\n"
                   "gauges \"testgauge2k\"   # trailing comment\n"
                   "run 36\n"
                   "expect token 1 == 36\n"
                   "expect token 604 ~= 2 1e-9\n"
                   "expect elec_master_sw == 2\n"
                   "expect no events\n");
    auto [status, out] = run({f});
    EXPECT_EQ(status, 0);
    EXPECT_EQ(out, "4 passed, 0 failed\n");
}

TEST_F(Scenario, FailedChecksNameFileAndLineAndRunOn) {
    auto f = write("fail.scn",
                   "set elec_batt_charge = 12\n"
                   "expect elec_batt_charge == 13\n"
                   "expect elec_batt_charge >= 12\n"
                   "run 1\n"
                   "expect event 65568\n"
                   "expect shown \"testgauge2k\" 1\n"
                   "expect window 10090 open\n");
    auto [status, out] = run({f});
    EXPECT_EQ(status, 1);
    EXPECT_NE(out.find(f + ":2: expected elec_batt_charge == 13, got 12\n"), std::string::npos) << out;
    EXPECT_NE(out.find(f + ":5: expected event 65568, got none\n"), std::string::npos) << out;
    EXPECT_NE(out.find(f + ":6: expected e1 of \"testgauge2k\" shown, got hidden\n"), std::string::npos);
    EXPECT_NE(out.find(f + ":7: expected window 10090 open, got closed\n"), std::string::npos);
    EXPECT_TRUE(out.ends_with("1 passed, 4 failed\n")) << out;
}

TEST_F(Scenario, ParseErrorRunsNothingOfThatScriptAndExitsTwo) {
    auto good = write("a.scn", "expect elec_master_sw == 2\n");
    auto bad = write("b.scn", "expect elec_master_sw == 3\nbogus 1\n");
    auto [status, out] = run({good, bad});
    EXPECT_EQ(status, 2);
    EXPECT_NE(out.find(bad + ":2: unknown command 'bogus'"), std::string::npos) << out;
    // the bad script's failing check on line 1 never ran
    EXPECT_TRUE(out.ends_with("1 passed, 0 failed\n")) << out;
}

TEST_F(Scenario, FolderRunsScriptsSortedByNameEachOnAFreshModule) {
    write("2.scn", "expect elec_master_sw == 2\nexpect token 1 == 0\n");
    write("1.scn", "set elec_master_sw = 0\nrun 5\n");
    write("notes.txt", "not a script\n");
    auto [status, out] = run({dir.string()});
    EXPECT_EQ(status, 0) << out;
    EXPECT_EQ(out, "2 passed, 0 failed\n");
}

TEST_F(Scenario, UnreadableFileIsAnError) {
    auto [status, out] = run({(dir / "missing.scn").string()});
    EXPECT_EQ(status, 2);
    EXPECT_NE(out.find("missing.scn:0: cannot read"), std::string::npos);
}

TEST_F(Scenario, NumbersAndTokenForms) {
    Script s;
    ParseError e;
    ASSERT_TRUE(parse_script("x.scn",
                             "token 0x35 = bcd 0x1234\n"
                             "token 605 = -1e-3\n"
                             "set elec_dc_volts = 45.5\n"
                             "named \"TRIM_CORR\" = -12\n"
                             "calc \"(A:Light cabin,bool)\" = 1\n"
                             "expect event 0x103CA value 10090\n"
                             "expect event 65568 count 0\n"
                             "expect no event 65568\n"
                             "expect named \"TRIM_CORR\" < 0\n"
                             "expect token 605 ~= 0 0.01\n"
                             "expect sound \"CLICK\" played count 2\n"
                             "expect sound \"GPWSPULLUP\" volume -1000\n"
                             "expect hidden \"testgauge2k\" 1\n"
                             "expect window 10090 closed\n"
                             "hold \"testgauge2k\" 1 1 3\n"
                             "aircraft off\n",
                             host, s, e))
        << e.line << ": " << e.message;
    EXPECT_EQ(s.commands[0].kind, CmdKind::TokenBcd);
    EXPECT_EQ(s.commands[0].id, 0x35u);
    EXPECT_EQ(s.commands[0].value, 0x1234);
    EXPECT_EQ(s.commands[1].value, -1e-3);
    EXPECT_EQ(s.commands[5].id, 66506u);
    EXPECT_EQ(s.commands[5].value, 10090);
}

TEST_F(Scenario, BcdTokenFillsFirstFourBytes) {
    auto f = write("bcd.scn", "token 53 = 5.5\ntoken 53 = bcd 0x12345678\nexpect token 53 != 5.5\n");
    auto [status, out] = run({f});
    EXPECT_EQ(status, 0) << out;
    host.set_token_bcd(53, 0x12345678);
    kestrane::u8 raw[8];
    host.read_token(53, raw);
    EXPECT_EQ(raw[0], 0x78);
    EXPECT_EQ(raw[3], 0x12);
    EXPECT_EQ(raw[4], 0);
    EXPECT_EQ(raw[7], 0);
}

TEST_F(Scenario, BadLinesGiveTheirLineAndReason) {
    struct Case {
        const char* text;
        int line;
        const char* fragment;
    } cases[] = {
        {"run 1\nrun 1.5\n", 2, "whole number"},
        {"run -1\n", 1, "whole number"},
        {"run\n", 1, "expected a cycle count"},
        {"run 10 20\n", 1, "unexpected '20'"},
        {"token 1 = abc\n", 1, "bad number 'abc'"},
        {"token 1 = nan\n", 1, "bad number 'nan'"},
        {"token 1 = 0xZZ\n", 1, "bad number"},
        {"token 1 = bcd 1.5\n", 1, "whole number"},
        {"token 1 5\n", 1, "expected '='"},
        {"set no_such_field = 1\n", 1, "unknown field 'no_such_field'"},
        {"expect no_such_field == 1\n", 1, "unknown field"},
        {"expect elec_ess_bus =< 1\n", 1, "unknown comparison '=<'"},
        {"expect elec_ess_bus ~= 1\n", 1, "tolerance"},
        {"gauges \"kestrane nothing\"\n", 1, "unknown gauge \"kestrane nothing\""},
        {"gauges testgauge2k\n", 1, "double quotes"},
        {"remove \"testgauge2k\"\n", 1, "not installed"},
        {"\n\nclick \"testgauge2k\" 36 0\n", 3, "hits no mouse area"},
        {"rclick \"testgauge2k\" 1 1\n", 1, "hits no mouse area"},
        {"move \"testgauge2k\" 1 1\n", 1, "hits no mouse area"},
        {"expect sound \"BOOM\" played\n", 1, "unknown sound \"BOOM\""},
        {"expect sound \"CLICK\" loud\n", 1, "expected played"},
        {"expect shown \"testgauge2k\" 2\n", 1, "has no element e2"},
        {"named \"X = 1\n", 1, "unterminated string"},
        {"trace\n", 1, "to trace"},
        {"trace token 61 no_such_field\n", 1, "unknown field 'no_such_field'"},
        {"aircraft on\n", 1, "'off' or 'default'"},
        {"expect window 10090 ajar\n", 1, "'open' or 'closed'"},
        {"expect no thing\n", 1, "'event' or 'events'"},
        {"hold \"testgauge2k\" 1 1 0\n", 1, "whole number from 1"},
    };
    for (const Case& c : cases) {
        ParseError e = parse_error(c.text);
        EXPECT_EQ(e.line, c.line) << c.text;
        EXPECT_NE(e.message.find(c.fragment), std::string::npos) << c.text << " -> " << e.message;
    }
}

TEST_F(Scenario, SoundChecksNameWhatHappened) {
    auto f = write("snd.scn",
                   "gauges \"kestrane toggle_pan_tadg\" \"kestrane callsigns_jm47\"\n"
                   "click \"kestrane callsigns_jm47\" 115 60\n"
                   "expect sound \"CLICK\" silent\n"
                   "expect sound \"HI\" looping\n"
                   "expect sound \"LO\" played\n"
                   "expect sound \"CLICK\" played count 2\n"
                   "expect sound \"CLICK\" volume -1000\n"
                   "expect sound \"HI\" idle\n");
    auto [status, out] = run({f});
    EXPECT_EQ(status, 1);
    EXPECT_NE(out.find(":3: expected sound \"CLICK\" silent, got 1 played, 0 looping, 0 stopped"),
              std::string::npos)
        << out;
    EXPECT_NE(out.find(":4: expected sound \"HI\" looping, got only played once"), std::string::npos) << out;
    EXPECT_NE(out.find(":5: expected sound \"LO\" played, got not played"), std::string::npos) << out;
    EXPECT_NE(out.find(":6: expected sound \"CLICK\" played count 2, got 1"), std::string::npos) << out;
    EXPECT_NE(out.find(":7: expected sound \"CLICK\" volume -1000, got -2000"), std::string::npos) << out;
    EXPECT_NE(out.find(":8: expected sound \"HI\" idle, got playing"), std::string::npos) << out;
}

// expect value / expect text read what each element showed when its gauge
// was last drawn: needles, both axes of moving images, branch strings.
TEST_F(Scenario, DrawnValuesAndTexts) {
    auto f = write("drawn.scn",
                   "gauges \"testgauge2k\" \"kestrane oil_press_jm47\" \"kestrane eng_throttles_jm47\"\n"
                   "expect value \"kestrane oil_press_jm47\" 1 == 0\n"  // 2: not drawn yet
                   "token 905 = 1.5\n"
                   "token 13 = -2\n"
                   "set oil_press_disp_lh = 20000\n"
                   "run 1\n"
                   "expect text \"testgauge2k\" 0.1 \"1.5000\"\n"
                   "expect text \"testgauge2k\" 0.4 \"-2.000\"\n"
                   "expect text \"testgauge2k\" 0.2 \"1\"\n"  // 9
                   "expect value \"kestrane oil_press_jm47\" 1 == 10000\n"
                   "expect oil_press_disp_lh == 10000\n"
                   "expect value \"kestrane oil_press_jm47\" 2 ~= 3 1\n"  // 12
                   "expect value \"kestrane eng_throttles_jm47\" 5 y >= 0\n"
                   "expect value \"kestrane eng_throttles_jm47\" 1 x >= 0\n"
                   "remove \"kestrane oil_press_jm47\"\n"
                   "gauges \"kestrane oil_press_jm47\"\n"
                   "expect value \"kestrane oil_press_jm47\" 1 == 10000\n");  // 17
    auto [status, out] = run({f});
    EXPECT_EQ(status, 1);
    const std::string not_drawn = "got not drawn since the gauge was installed";
    EXPECT_NE(out.find(":2: expected value of e1 of \"kestrane oil_press_jm47\", " + not_drawn),
              std::string::npos)
        << out;
    EXPECT_NE(out.find(":9: expected text of e0.2 of \"testgauge2k\" \"1\", got \"0.0000\""),
              std::string::npos)
        << out;
    EXPECT_NE(out.find(":12: expected value of e2 of \"kestrane oil_press_jm47\" ~= 3 +/- 1, got 0"),
              std::string::npos)
        << out;
    EXPECT_NE(out.find(":17: expected value of e1 of \"kestrane oil_press_jm47\", " + not_drawn),
              std::string::npos)
        << out;
    EXPECT_TRUE(out.ends_with("6 passed, 4 failed\n")) << out;
}

TEST_F(Scenario, DrawnChecksRejectWhatTheElementCannotShow) {
    struct Case {
        const char* text;
        const char* fragment;
    } cases[] = {
        {"expect value \"kestrane oil_press_jm47\" 1 rotation == 0\n", "is a needle: its value has no axis"},
        {"expect value \"kestrane oil_press_jm47\" 1 x == 0\n", "is a needle: its value has no axis"},
        {"expect text \"kestrane oil_press_jm47\" 1 \"5\"\n", "is a needle, not a string"},
        {"expect value \"kestrane oil_press_jm47\" 0 == 0\n",
         "is a static image, which has no value callback"},
        {"expect value \"kestrane oil_press_jm47\" 3 == 0\n", "has no element e3"},
        {"expect value \"testgauge2k\" 0.1 == 0\n", "is a string: check its text with expect text"},
        {"expect text \"testgauge2k\" 0.5 \"x\"\n", "e0 of \"testgauge2k\" has no branch 5"},
        {"expect shown \"testgauge2k\" 1.1\n", "has no branch 1"},
        {"expect text \"testgauge2k\" 0.0 \"x\"\n", "bad element '0.0'"},
        {"expect text \"testgauge2k\" 0.1x \"x\"\n", "bad element '0.1x'"},
        {"expect text \"testgauge2k\" 0.1\n", "expected the text in double quotes"},
        {"expect value \"kestrane eng_throttles_jm47\" 5 == 0\n", "is a moving image: name the callback"},
        {"expect value \"kestrane eng_throttles_jm47\" 5 rotation == 0\n", "only sprites have a rotation"},
        {"expect event 1 value -2147483649\n", "bad number"},
    };
    for (const Case& c : cases) {
        ParseError e = parse_error(c.text);
        EXPECT_EQ(e.line, 1) << c.text;
        EXPECT_NE(e.message.find(c.fragment), std::string::npos) << c.text << " -> " << e.message;
    }
}

TEST_F(Scenario, NegativeEventValueIsTheSame32BitsSigned) {
    Script s;
    ParseError e;
    ASSERT_TRUE(parse_script("x.scn", "expect event 65580 value -8000\nexpect event 65580 value 4294959296\n",
                             host, s, e))
        << e.message;
    EXPECT_EQ(s.commands[0].value, 4294959296.0);
    EXPECT_EQ(s.commands[1].value, 4294959296.0);
}

// Every script under tests/bad names its faulty line and message on line 1:
//   # error: LINE: FRAGMENT
TEST_F(Scenario, BundledBadScriptsAreRejected) {
    std::filesystem::path bad = std::filesystem::path(KESTRANE_SOURCE_DIR) / "tests" / "bad";
    int n = 0;
    for (const auto& entry : std::filesystem::directory_iterator(bad)) {
        if (entry.path().extension() != ".scn")
            continue;
        ++n;
        std::ifstream in(entry.path());
        std::stringstream text;
        text << in.rdbuf();
        std::smatch m;
        std::string body = text.str();
        ASSERT_TRUE(std::regex_search(body, m, std::regex("^# error: (\\d+): (.*)")))
            << entry.path() << " has no '# error: LINE: FRAGMENT' first line";
        Script s;
        ParseError e;
        ASSERT_FALSE(parse_script(entry.path().string(), body, host, s, e)) << entry.path();
        EXPECT_EQ(e.line, std::stoi(m[1])) << entry.path();
        EXPECT_NE(e.message.find(m[2].str()), std::string::npos) << entry.path() << ": " << e.message;
        auto [status, out] = run({entry.path().string()});
        EXPECT_EQ(status, 2) << entry.path();
    }
    EXPECT_GT(n, 0);
}

}  // namespace
