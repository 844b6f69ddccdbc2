#include <filesystem>
#include <gmock/gmock.h>
#include <regex>
#include <sstream>

#include "host_log.h"
#include "testing/temporary_directory.h"

// What the launcher relies on in each host's log.
namespace kivu::testing {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::SizeIs;

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    const std::string end = logLineEnd;
    for (std::string line; std::getline(in, line);) {
        EXPECT_TRUE(line.ends_with(end)) << line;
        lines.push_back(line.substr(0, line.size() - end.size()));
    }
    return lines;
}

class LogContract : public ::testing::Test {
 protected:
    std::string Text() const { return directory.Read("Kivu.log"); }
    std::string Old() const { return directory.Read("Kivu.old.log"); }

    const TemporaryDirectory directory;
    const std::string path = directory.Path("Kivu.log");
};

TEST_F(LogContract, ALineHasTimeProcessAndText) {
    HostLog log(path);
    log.Write("one");
    log.Write("Größe\nthree\xFF");
    const auto lines = Lines(Text());
    ASSERT_THAT(lines, SizeIs(2));
    const std::regex form(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} \[\d+\] one)");
    EXPECT_TRUE(std::regex_match(lines[0], form)) << lines[0];
    EXPECT_THAT(lines[1], EndsWith("] Größe<0A>three<FF>"));
}

TEST_F(LogContract, DirectoriesAreMadeWithTheFirstLine) {
    HostLog log(directory.Path("a b/ä/Kivu.log"));
    EXPECT_EQ(directory.Count(), 0U);
    log.Write("x");
    EXPECT_THAT(Lines(directory.Read("a b/ä/Kivu.log")).at(0), EndsWith("] x"));
}

TEST_F(LogContract, WhereNothingCanBeWrittenNothingIs) {
    directory.Write("file", "x");
    HostLog(directory.Path("file/Kivu.log")).Write("x");
    HostLog("").Write("x");
    HostLog(directory.Root()).Write("x");
    EXPECT_EQ(directory.Read("file"), "x");
    EXPECT_EQ(directory.Count(), 1U);
}

TEST_F(LogContract, AFullOneBecomesTheOldOne) {
    HostLog(directory.Path("probe")).Write("0000");
    const std::size_t length = directory.Read("probe").size();
    HostLog log(path, 3 * length);
    for (const char* text : {"0001", "0002", "0003"})
        log.Write(text);
    EXPECT_FALSE(std::filesystem::exists(directory.Path("Kivu.old.log")));
    EXPECT_EQ(Text().size(), 3 * length);
    for (int i = 4; i < 70; ++i) {
        log.Write("00" + std::to_string(10 + i));
        EXPECT_LE(Text().size(), 3 * length);
        EXPECT_THAT(Lines(Old()), SizeIs(3));
    }
    EXPECT_THAT(Lines(Text()).back(), HasSubstr("] 0079"));
    EXPECT_EQ(directory.Count(), 3U) << "one older file, and no other";
}

TEST_F(LogContract, AFullOneThatCannotBeRenamedIsEmptied) {
    std::filesystem::create_directories(directory.Path("Kivu.old.log/x"));
    HostLog log(path, 200);
    for (int i = 0; i < 20; ++i)
        log.Write("line " + std::to_string(i));
    EXPECT_LE(Text().size(), 200U);
    EXPECT_THAT(Lines(Text()).back(), EndsWith("] line 19"));
}

}  // namespace
}  // namespace kivu::testing
