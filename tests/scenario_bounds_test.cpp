// The scenario runner's bounds: script size, line length and cycle counts,
// each a file:line error and exit status 2; endless files end.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "host/scenario.h"

namespace {

using namespace kestrane::host;

ParseError parse_error(Host& host, const std::string& text) {
    Script s;
    ParseError e;
    EXPECT_FALSE(parse_script("x.scn", text, host, s, e));
    return e;
}

TEST(ScenarioBounds, CycleCountsLineLengthAndScriptSize) {
    Host host;
    ASSERT_TRUE(host.ok()) << host.error();
    Script s;
    ParseError e;
    EXPECT_TRUE(parse_script("x.scn", "run 1000000\nhold \"testgauge2k\" 1 1 1000000\n", host, s, e))
        << e.message;
    e = parse_error(host, "run 1\nrun 1000001\n");
    EXPECT_EQ(e.line, 2);
    EXPECT_NE(e.message.find("from 0 to 1000000"), std::string::npos) << e.message;
    e = parse_error(host, "hold \"testgauge2k\" 1 1 2147483647\n");
    EXPECT_EQ(e.line, 1);
    EXPECT_NE(e.message.find("cycle count"), std::string::npos) << e.message;

    EXPECT_TRUE(parse_script("x.scn", "#" + std::string(kMaxLineBytes - 1, 'x') + "\n", host, s, e));
    e = parse_error(host, "run 1\n\n#" + std::string(kMaxLineBytes, 'x') + "\nrun 1\n");
    EXPECT_EQ(e.line, 3);
    EXPECT_NE(e.message.find("line longer than 4096"), std::string::npos) << e.message;

    // a number after an earlier fault on the line is not converted
    e = parse_error(host, "click 888888888888888888888 \"testgauge2k\" 2 316\n");
    EXPECT_EQ(e.line, 1);

    std::string big;
    while (big.size() <= kMaxScriptBytes)
        big += "# a comment line of a long script\n";
    e = parse_error(host, big);
    EXPECT_GT(e.line, 100000);
    EXPECT_NE(e.message.find("script longer than"), std::string::npos) << e.message;
}

TEST(ScenarioBounds, EndlessFileIsAnErrorWithExitTwo) {
    Host host;
    ASSERT_TRUE(host.ok());
    std::ostringstream out;
    EXPECT_EQ(run_paths({"/dev/zero"}, host, out), 2);
    EXPECT_NE(out.str().find("/dev/zero:"), std::string::npos) << out.str();
}

}  // namespace
