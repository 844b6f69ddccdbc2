#include "text/command_line.h"

#include <gmock/gmock.h>

namespace kivu::text {
namespace {

using std::string;
using std::string_view;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::literals;

TEST(SplitWindowsCommandLine, SplitsAtBlanksAndTabs) {
    EXPECT_THAT(SplitWindowsCommandLine("-cheat  -skip_gameinfo\t-f "),
                ElementsAre("-cheat", "-skip_gameinfo", "-f"));
    EXPECT_THAT(SplitWindowsCommandLine(""), IsEmpty());
    EXPECT_THAT(SplitWindowsCommandLine(" \t "), IsEmpty());
    EXPECT_THAT(SplitWindowsCommandLine("a\nb"), ElementsAre("a\nb"));
}

TEST(SplitWindowsCommandLine, KeepsBlanksInQuotes) {
    EXPECT_THAT(SplitWindowsCommandLine("\"a b\" c"), ElementsAre("a b", "c"));
    EXPECT_THAT(SplitWindowsCommandLine("a\" b \"c"), ElementsAre("a b c"));
    EXPECT_THAT(SplitWindowsCommandLine("-s \"path=C:\\My Roms\" x"),
                ElementsAre("-s", "path=C:\\My Roms", "x"));
    EXPECT_THAT(SplitWindowsCommandLine("\"\" a \"\""), ElementsAre("", "a", ""));
    EXPECT_THAT(SplitWindowsCommandLine("\"left open b"), ElementsAre("left open b"));
    EXPECT_THAT(SplitWindowsCommandLine("\""), ElementsAre(""));
}

TEST(SplitWindowsCommandLine, CountsBackslashesOnlyInFrontOfAQuote) {
    EXPECT_THAT(SplitWindowsCommandLine("C:\\a\\\\b"), ElementsAre("C:\\a\\\\b"));
    EXPECT_THAT(SplitWindowsCommandLine(R"(\"a b\")"), ElementsAre("\"a", "b\""));
    EXPECT_THAT(SplitWindowsCommandLine(R"("a\"b c")"), ElementsAre("a\"b c"));
    EXPECT_THAT(SplitWindowsCommandLine(R"("a\\" b)"), ElementsAre("a\\", "b"));
    EXPECT_THAT(SplitWindowsCommandLine(R"(a\\\"b)"), ElementsAre("a\\\"b"));
    EXPECT_THAT(SplitWindowsCommandLine(R"(a\\\\"b c" d)"), ElementsAre("a\\\\b c", "d"));
    EXPECT_THAT(SplitWindowsCommandLine("a\\\\"), ElementsAre("a\\\\"));
}

TEST(SplitWindowsCommandLine, ReadsADoubledQuoteWithinQuotesAsOne) {
    EXPECT_THAT(SplitWindowsCommandLine(R"("a""b" c)"), ElementsAre("a\"b", "c"));
    EXPECT_THAT(SplitWindowsCommandLine(R"("""a b""" c)"), ElementsAre("\"a b\"", "c"));
}

TEST(QuoteForShell, PutsEveryWordInSingleQuotes) {
    EXPECT_EQ(QuoteForShell("plain"), "'plain'");
    EXPECT_EQ(QuoteForShell(""), "''");
    EXPECT_EQ(QuoteForShell("it's"), "'it'\\''s'");
    EXPECT_EQ(QuoteForShell("$(x) `y` \"z\" \\ ; & | #"), "'$(x) `y` \"z\" \\ ; & | #'");
    EXPECT_EQ(QuoteForShell("a\nb"), "'a\nb'");
}

TEST(QuoteForShell, CutsAtNul) {
    EXPECT_EQ(QuoteForShell("a\0b'"s), "'a'");
}

TEST(IsProgramFile, GoesByTheEnding) {
    for (const char* path : {"C:\\a b\\emu.exe", "EMU.EXE", "x.bat.Com", ".exe"})
        EXPECT_TRUE(IsProgramFile(path)) << path;
    for (const char* path : {"run.bat", "run.cmd", "run", "emu.exe.lnk", "exe", ""})
        EXPECT_FALSE(IsProgramFile(path)) << path;
}

TEST(IsPlainForCmd, FindsWhatIsActedUponAlsoInQuotes) {
    EXPECT_TRUE(IsPlainForCmd("\"D:\\My Roms\\Super (Game)'s; a,b=c!.zip\""));
    EXPECT_TRUE(IsPlainForCmd(""));
    for (const char c : "&|<>^%"s)
        EXPECT_FALSE(IsPlainForCmd("\"D:\\a "s + c + " b.zip\"")) << c;
}

TEST(EscapeForCmd, LeavesAHarmlessWord) {
    EXPECT_EQ(EscapeForCmd("D:\\MYROMS~1\\SUPERG~1.ZIP"), "D:\\MYROMS~1\\SUPERG~1.ZIP");
    EXPECT_EQ(EscapeForCmd("\"D:\\My Roms\\Super Game.zip\""), "\"D:\\My Roms\\Super Game.zip\"");
    EXPECT_EQ(EscapeForCmd("C:\\a(b)'c;d,e=f!g\\ä"), "C:\\a(b)'c;d,e=f!g\\ä");
    EXPECT_EQ(EscapeForCmd(""), "");
}

TEST(EscapeForCmd, QuotesABareWordThatWouldBeActedUpon) {
    for (const char c : "&|<>^"sv) {
        EXPECT_EQ(EscapeForCmd("a"s + c + "b"), "\"a"s + c + "b\"");
        EXPECT_EQ(EscapeForCmd("\"a "s + c + " b\""), "\"a "s + c + " b\"");
    }
}

TEST(EscapeForCmd, DoublesPercentSigns) {
    EXPECT_EQ(EscapeForCmd("100%"), "100%%");
    EXPECT_EQ(EscapeForCmd("\"%PATH% x\""), "\"%%PATH%% x\"");
    EXPECT_EQ(EscapeForCmd("R&D%"), "\"R&D%%\"");
}

TEST(EscapeForCmd, RefusesWhatNothingMakesHarmless) {
    EXPECT_EQ(EscapeForCmd("a\"b"), std::nullopt);
    EXPECT_EQ(EscapeForCmd("\"a\" & \"b\""), std::nullopt);
    EXPECT_EQ(EscapeForCmd("\""), std::nullopt);
    EXPECT_EQ(EscapeForCmd("a\nb"), std::nullopt);
    EXPECT_EQ(EscapeForCmd("a\rb"), std::nullopt);
    EXPECT_EQ(EscapeForCmd("a\x1A"), std::nullopt);
    EXPECT_EQ(EscapeForCmd("a\0b"s), std::nullopt);
}

TEST(DoublePercent, DoublesEverySign) {
    EXPECT_EQ(DoublePercent("%a%%"), "%%a%%%%");
    EXPECT_EQ(DoublePercent("a"), "a");
}

TEST(ToWinePath, NamesPosixPathsOnDriveZ) {
    EXPECT_EQ(ToWinePath("/a/b"), "Z:\\a\\b");
    EXPECT_EQ(ToWinePath("/"), "Z:\\");
    EXPECT_EQ(ToWinePath("C:\\a"), "C:\\a");
    EXPECT_EQ(ToWinePath("a/b"), "a/b");
    EXPECT_EQ(ToWinePath(""), "");
}

TEST(IsWindowsProgram, GoesByTheEnding) {
    EXPECT_TRUE(IsWindowsProgram("/emus/winuae.exe"));
    EXPECT_TRUE(IsWindowsProgram("C:\\emus\\RUN.BAT"));
    EXPECT_TRUE(IsWindowsProgram("run.Cmd"));
    EXPECT_TRUE(IsWindowsProgram("\"C:\\My Emus\\run.bat\""));
    EXPECT_FALSE(IsWindowsProgram("/usr/bin/dosbox"));
    EXPECT_FALSE(IsWindowsProgram("/emus/x.exe/run"));
    EXPECT_FALSE(IsWindowsProgram("x.exec"));
    EXPECT_FALSE(IsWindowsProgram("exe"));
    EXPECT_FALSE(IsWindowsProgram(""));
}

}  // namespace
}  // namespace kivu::text
