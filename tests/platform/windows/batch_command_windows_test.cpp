#include <gtest/gtest.h>

#include "platform/windows/batch_command.h"

namespace kivu::platform {
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

}  // namespace
}  // namespace kivu::platform
