#include <gtest/gtest.h>
#include <random>

#include "hosts/windows/batch_command.h"
#include "hosts/windows/program_starter_windows.h"

namespace kivu::hosts {
namespace {

TEST(IsBatchFileWindows, GoesByTheEndingAsTheSystemWillReadIt) {
    for (const char* path : {"C:\\a b\\run.bat", "run.CMD", "C:\\run.bat.", "C:\\run.cmd . ."})
        EXPECT_TRUE(IsBatchFile(path)) << path;
    for (const char* path : {"C:\\run.exe", "C:\\run.bat.exe", "bat", "", ". .", "C:\\x.bat\\run"})
        EXPECT_FALSE(IsBatchFile(path)) << path;
}

TEST(HarmlessArgumentsWindows, LeavesWhatIsNotActedUpon) {
    for (const char* text : {"", " ", " -x  /y:1\t\"D:\\A & B\\100%.zip\" ", " (a) 'b' c!d;e,f=g",
                             " \"left open & on"})
        EXPECT_EQ(HarmlessArguments(text), text);
}

TEST(HarmlessArgumentsWindows, QuotesAnArgumentThatWouldBeActedUpon) {
    EXPECT_EQ(HarmlessArguments(" D:\\A&B.zip -x"), " \"D:\\A&B.zip\" -x");
    for (const char c : {'&', '|', '<', '>', '^'}) {
        const std::string odd(1, c);
        EXPECT_EQ(HarmlessArguments(" a " + odd + " b"), " a \"" + odd + "\" b");
    }
    EXPECT_EQ(HarmlessArguments("a\"b c\"&d"), "\"ab c&d\"");
    EXPECT_EQ(HarmlessArguments("\"a\"&\"b\""), "\"a&b\"");
}

TEST(HarmlessArgumentsWindows, SeesQuotesAsTheCommandProcessorDoes) {
    // A backslash does not keep a quote from opening: "&" is inside here, and outside there.
    EXPECT_EQ(HarmlessArguments(" \\\"a&b"), " \\\"a&b");
    EXPECT_EQ(HarmlessArguments(" \"a\\\"&b\""), std::nullopt);
}

// As the command processor reads the text, from its beginning to its end.
bool HoldsLiveCharacter(const std::string& text) {
    bool quoted = false;
    for (const char c : text) {
        if (c == '"') quoted = !quoted;
        if (!quoted && std::string_view("&|<>^").find(c) != std::string_view::npos) return true;
    }
    return false;
}

TEST(HarmlessArgumentsWindows, LeavesNothingAliveInAnyText) {
    std::mt19937 random(20);
    constexpr std::string_view letters = "ab \t\"\"\"\\&|<>^%!(),";
    int given = 0;
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (std::size_t length = random() % 24; length > 0; --length)
            text += letters[random() % letters.size()];
        const auto harmless = HarmlessArguments(text);
        if (!harmless) continue;
        ++given;
        EXPECT_FALSE(HoldsLiveCharacter(*harmless)) << text << " gives " << *harmless;
        if (!HoldsLiveCharacter(text)) {
            EXPECT_EQ(*harmless, text);
        }
    }
    EXPECT_GT(given, 10000);
}

TEST(HarmlessArgumentsWindows, RefusesALineEnd) {
    EXPECT_EQ(HarmlessArguments(" a\nb"), std::nullopt);
    EXPECT_EQ(HarmlessArguments(" \"a\rb\""), std::nullopt);
}

TEST(BatchProcessorWindows, IsNamedByItsFullPath) {
    const CommandProcessor processor = BatchProcessor();
    EXPECT_EQ(processor.program.substr(1, 2), L":\\");
    EXPECT_TRUE(processor.commandLine.starts_with(L"\"" + processor.program + L"\" "));
    EXPECT_NE(processor.commandLine.find(L"&%KIVU_START%\""), std::wstring::npos);
}

TEST(StartersWords, WhoMayRunAFileSaysItsEnding) {
    const WindowsProgramStarter starter;
    for (const char* program :
         {"C:\\a b\\tool.exe", "C:\\TOOL.COM", "C:\\tool.Bat", "C:\\tool.cmd"})
        EXPECT_TRUE(starter.MayRun(program)) << program;
    for (const char* other :
         {"", "C:\\readme.txt", "C:\\game.iso", "C:\\tool", "C:\\exe", "C:\\tool.exe.txt"})
        EXPECT_FALSE(starter.MayRun(other)) << other;
}

}  // namespace
}  // namespace kivu::hosts
