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

TEST(CommandLine, LeavesAbsolutePathsAlone) {
    EXPECT_EQ(Text({"/a.adf"}, {"/home/u//a.adf"}), "/a.adf");
    EXPECT_EQ(Text({"C:\\a.adf"}, {"/home/u/C:\\a.adf"}), "C:\\a.adf");
}

}  // namespace
}  // namespace kivu::tests
