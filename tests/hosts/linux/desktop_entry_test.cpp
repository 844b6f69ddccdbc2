#include "hosts/linux/desktop_entry.h"

#include <gmock/gmock.h>

namespace kivu::hosts {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string awkward = "/r/a b\"c'$(x)%f\xC3\xBC\n.ini";

std::vector<std::string> Words(const std::string& exec, const std::string& path = "/f.txt") {
    const auto entry = ReadDesktopEntry(
        "[Desktop Entry]\nType=Application\nName=My Editor\nIcon=pen\nExec=" + exec + "\n",
        "/usr/share/applications/e.desktop");
    return entry ? WordsFor(*entry, path) : std::vector<std::string>{"no entry"};
}

TEST(DesktopEntryTest, TheFileStandsWhereTheCommandLineHasAPlaceForIt) {
    EXPECT_THAT(Words("gedit %f"), ElementsAre("gedit", "/f.txt"));
    EXPECT_THAT(Words("gedit -x %F --end"), ElementsAre("gedit", "-x", "/f.txt", "--end"));
    EXPECT_THAT(Words("gedit --file=%f"), ElementsAre("gedit", "--file=/f.txt"));
    EXPECT_THAT(Words("gedit"), ElementsAre("gedit", "/f.txt"));
}

TEST(DesktopEntryTest, AnAddressHasPlainCharactersOnly) {
    EXPECT_THAT(Words("code %U", "/r/a b#%?\xC3\xBC.txt"),
                ElementsAre("code", "file:///r/a%20b%23%25%3F%C3%BC.txt"));
    EXPECT_THAT(Words("code --new %u"), ElementsAre("code", "--new", "file:///f.txt"));
}

TEST(DesktopEntryTest, APathIsOneWordWhateverItHolds) {
    EXPECT_THAT(Words("ed %f", awkward), ElementsAre("ed", awkward));
    EXPECT_THAT(Words("ed", awkward), ElementsAre("ed", awkward));
}

TEST(DesktopEntryTest, OtherFieldsStandForWhatTheyMean) {
    EXPECT_THAT(Words("e %i %f"), ElementsAre("e", "--icon", "pen", "/f.txt"));
    EXPECT_THAT(Words("e --title %c %f"), ElementsAre("e", "--title", "My Editor", "/f.txt"));
    EXPECT_THAT(Words("e %k"), ElementsAre("e", "/usr/share/applications/e.desktop", "/f.txt"));
    EXPECT_THAT(Words("e 100%% %f"), ElementsAre("e", "100%", "/f.txt"));
    EXPECT_THAT(Words("e %d %D %n %N %v %m %f"), ElementsAre("e", "/f.txt"));
}

TEST(DesktopEntryTest, QuotesHoldWordsTogether) {
    EXPECT_THAT(Words(R"("/opt/my editor/e" "a \\"b\\" \\$c \\\\ d" %f)"),
                ElementsAre("/opt/my editor/e", "a \"b\" $c \\ d", "/f.txt"));
    EXPECT_THAT(Words("e \"\" %f"), ElementsAre("e", "", "/f.txt"));
    EXPECT_THAT(Words(R"(e a\\ b %f)"), ElementsAre("e", "a b", "/f.txt"));
}

TEST(DesktopEntryTest, ABrokenCommandLineIsNone) {
    for (const char* exec : {"e \"open %f", "e %x", "e %", "\"\" %f"})
        EXPECT_THAT(Words(exec), IsEmpty()) << exec;
    EXPECT_THAT(Words("   "), ElementsAre("no entry"));
}

TEST(DesktopEntryTest, OnlyItsOwnGroupCounts) {
    const auto entry = ReadDesktopEntry(
        "# Exec=no\n[Other]\nExec=no\n[Desktop Entry]\r\nType = Application\r\nExec = yes\r\n"
        "Terminal=true\nPath=/a\\sb\n[Desktop Action new]\nExec=no\nTerminal=false\n",
        "/e");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->exec, "yes");
    EXPECT_TRUE(entry->terminal);
    EXPECT_EQ(entry->directory, "/a b");
}

TEST(DesktopEntryTest, WhatIsNoProgramIsNone) {
    EXPECT_FALSE(ReadDesktopEntry("", "/e"));
    EXPECT_FALSE(ReadDesktopEntry("[Desktop Entry]\nType=Link\nExec=e\n", "/e"));
    EXPECT_FALSE(ReadDesktopEntry("[Desktop Entry]\nExec=e\n", "/e"));
    EXPECT_FALSE(ReadDesktopEntry("[Desktop Entry]\nType=Application\n", "/e"));
    EXPECT_FALSE(
        ReadDesktopEntry("[Desktop Entry]\nType=Application\nExec=e\nHidden=true\n", "/e"));
    EXPECT_FALSE(ReadDesktopEntry(std::string("\0\xFF[Desktop", 10), "/e"));
}

}  // namespace
}  // namespace kivu::hosts
