#include "app/command_line.h"

#include <gtest/gtest.h>
#include <set>

namespace kivu::tests {
namespace {

std::string Text(std::vector<std::string> arguments, std::set<std::string> files) {
    return app::CommandLineText(std::move(arguments), "/home/u",
                                [=](const std::string& path) { return files.contains(path); });
}

TEST(CommandLine, IsEmptyWithoutArguments) {
    EXPECT_EQ(Text({}, {}), "");
}

TEST(CommandLine, JoinsArgumentsByBlanks) {
    EXPECT_EQ(Text({"/games/a", "b", "?"}, {}), "/games/a b ?");
}

TEST(CommandLine, MakesARelativeFileAbsolute) {
    EXPECT_EQ(Text({"My Game.adf"}, {"/home/u/My Game.adf"}), "/home/u/My Game.adf");
    EXPECT_EQ(Text({"missing.adf"}, {}), "missing.adf");
}

TEST(CommandLine, PutsAFileNameTogetherThatAShellHasSplit) {
    EXPECT_EQ(Text({"My", "Game.adf"}, {"/home/u/My Game.adf"}), "/home/u/My Game.adf");
}

TEST(CommandLine, LogOptionIsTakenFromTheFrontAndFromBehind) {
    using Words = std::vector<std::string>;
    for (const Words& given :
         {Words{"--log", "a", "b"}, Words{"a", "b", "--log"}, Words{"--log", "a", "b", "--log"}}) {
        Words words = given;
        EXPECT_TRUE(app::TakeLogOption(words));
        EXPECT_EQ(words, (Words{"a", "b"}));
    }
    Words alone{"--log", "--log"};
    EXPECT_TRUE(app::TakeLogOption(alone));
    EXPECT_EQ(alone, Words{});
}

TEST(CommandLine, WhatOnlyLooksLikeTheLogOptionIsPartOfAName) {
    using Words = std::vector<std::string>;
    for (const Words& given : {Words{}, Words{"a", "--log", "b.adf"}, Words{"--logs"},
                               Words{"./--log"}, Words{"--Log"}, Words{""}}) {
        Words words = given;
        EXPECT_FALSE(app::TakeLogOption(words));
        EXPECT_EQ(words, given);
    }
}

TEST(CommandLine, LeavesAbsolutePathsAlone) {
    EXPECT_EQ(Text({"/a.adf"}, {"/home/u//a.adf"}), "/a.adf");
    EXPECT_EQ(Text({"C:\\a.adf"}, {"/home/u/C:\\a.adf"}), "C:\\a.adf");
}

}  // namespace
}  // namespace kivu::tests
