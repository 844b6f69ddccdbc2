#include "profile/ini_disk.h"

#include <filesystem>

namespace kivu::profile {
namespace {

using testing::FaultyFileSystem;

TEST_F(IniDiskTest, ProfileFillsItselfReadByRead) {
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", path, "1", true), "1");
    EXPECT_EQ(directory.Read("Kivu.ini"), "");
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", path, "1", true), "1");
    EXPECT_EQ(ini.ReadIniValue("Settings", "B", path, "2", true), "2");
    EXPECT_EQ(directory.Read("Kivu.ini"), "[Settings]\r\nA=1\r\nB=2\r\n");
    EXPECT_EQ(directory.Count(), 1U);
}

TEST_F(IniDiskTest, FullDiskAtAnyStepOfAWriteLeavesTheOldProfileAndNothingElse) {
    using Step = FaultyFileSystem::Step;
    directory.Write("Kivu.ini", "[Settings]\r\nA=1\r\n");
    for (const Step step : {Step::Write, Step::Flush, Step::Rename}) {
        faulty.FailOnce(step, 1, std::errc::no_space_on_device);
        ini.WriteIniValue("Settings", "A", "2", path, true);
        EXPECT_EQ(directory.Read("Kivu.ini"), "[Settings]\r\nA=1\r\n");
        EXPECT_EQ(directory.Count(), 1U);
    }
    EXPECT_EQ(faulty.Failures(), 3);
    ini.WriteIniValue("Settings", "A", "2", path, true);
    EXPECT_EQ(directory.Read("Kivu.ini"), "[Settings]\r\nA=2\r\n");
}

TEST_F(IniDiskTest, FullDiskKeepsTheProfileFromBeingMade) {
    faulty.FillDisk();
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", path, "1", true), "1");
    ini.WriteIniValue("Settings", "A", "2", path, true);
    EXPECT_EQ(directory.Count(), 0U);
}

TEST_F(IniDiskTest, DirectoryInPlaceOfTheProfileStays) {
    std::filesystem::create_directory(path);
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", path, "1", true), "1");
    ini.WriteIniValue("Settings", "A", "2", path, true);
    EXPECT_FALSE(ini.LoadProfile(path));
    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_EQ(directory.Count(), 1U);
}

TEST_F(IniDiskTest, ProfileOfTenMegabytesIsReadAndWritten) {
    std::string bytes = "[Settings]\n";
    while (bytes.size() < (10U << 20))
        bytes += "; a comment that says nothing at all\n";
    directory.Write("Kivu.ini", bytes);
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", path, "1", true), "1");
    EXPECT_EQ(directory.Read("Kivu.ini"), bytes + "A=1\r\n");
}

}  // namespace
}  // namespace kivu::profile
