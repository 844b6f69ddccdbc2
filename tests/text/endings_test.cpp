#include "text/endings.h"

#include <gtest/gtest.h>

namespace kivu::text {
namespace {

TEST(EndsWithNoCaseTest, CaseDoesNotCount) {
    EXPECT_TRUE(EndsWithNoCase("C:\\Emu\\WINUAE.Exe", ".eXE"));
    EXPECT_TRUE(EndsWithNoCase("ende.\xC3\x84", ".\xC3\xA4"));
    EXPECT_FALSE(EndsWithNoCase("winuae.exe.txt", ".exe"));
}

TEST(EndsWithNoCaseTest, WholeTextAndNothingAreEndings) {
    EXPECT_TRUE(EndsWithNoCase(".exe", ".exe"));
    EXPECT_TRUE(EndsWithNoCase("", ""));
    EXPECT_TRUE(EndsWithNoCase("a", ""));
    EXPECT_FALSE(EndsWithNoCase("exe", ".exe"));
}

}  // namespace
}  // namespace kivu::text
