#include "driver/command_line.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "testing/new_directory.h"

namespace kivu::driver {
namespace {

std::optional<Options> Parse(const std::vector<std::string>& arguments) {
    std::string error;
    auto options = ParseCommandLine(arguments, error);
    EXPECT_EQ(options.has_value(), error.empty());
    return options;
}

TEST(CommandLineTest, OnlyTheDirectoryIsNeeded) {
    using std::filesystem::absolute;
    const auto options = Parse({"--program-dir", "/tmp/kivu/"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->programDirectory, testing::HostPath(absolute("/tmp/kivu").string()));
    EXPECT_EQ(options->program, "Kivu");
    EXPECT_EQ(options->language, "English");
    EXPECT_EQ(options->time.hour, 12);
    EXPECT_FALSE(options->windowsStartFiles);
}

TEST(CommandLineTest, EverythingElseIsTaken) {
    const auto options =
        Parse({"--language", "German", "--program-dir", "/a", "--program", "Kivu-1.4", "--time",
               "14:05:09", "--command-line", "a b.adf", "--start-files", "windows"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->program, "Kivu-1.4");
    EXPECT_EQ(options->language, "German");
    EXPECT_EQ(options->commandLine, "a b.adf");
    EXPECT_EQ(options->time.second, 9);
    EXPECT_TRUE(options->windowsStartFiles);
}

TEST(CommandLineTest, AddressesAreThoseOfABuild) {
    const auto options =
        Parse({"--program-dir", "/a", "--update-base", "https://h", "--updater-sha256", "00ff",
               "--home-page", "https://p/", "--donate-url", "https://d/"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->build.updateBase, "https://h");
    EXPECT_TRUE(options->build.replacesItself);
    EXPECT_EQ(options->build.updaterHash, "00ff");
    EXPECT_EQ(options->build.homePage, "https://p/");
    EXPECT_EQ(options->build.donateUrl, "https://d/");
    EXPECT_FALSE(Parse({"--program-dir", "/a"})->build.replacesItself);
}

TEST(CommandLineTest, RelativeDirectoryIsMadeAbsolute) {
    EXPECT_EQ(Parse({"--program-dir", "x/../y/"})->programDirectory,
              (std::filesystem::current_path() / "y").string());
}

TEST(CommandLineTest, NonsenseIsRefused) {
    EXPECT_FALSE(Parse({}));
    EXPECT_FALSE(Parse({"--program-dir"}));
    EXPECT_FALSE(Parse({"--program-dir", ""}));
    EXPECT_FALSE(Parse({"--program-dir", "/a", "--time", "24:00:00"}));
    EXPECT_FALSE(Parse({"--program-dir", "/a", "--start-files", "vms"}));
    EXPECT_FALSE(Parse({"--program-dir", "/a", "extra"}));
    EXPECT_FALSE(Parse({"--program-dir", "/a", "--fast", "1"}));
}

}  // namespace
}  // namespace kivu::driver
