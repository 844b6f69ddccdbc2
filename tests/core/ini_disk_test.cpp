#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "core/ini.h"
#include "host_files.h"
#include "platform/temporary_directory.h"
#include "testing/faulty_file_system.h"

namespace kivu::core {
namespace {

using testing::FaultyFileSystem;
using testing::TemporaryDirectory;

// The store on the real disk.
class IniDiskTest : public ::testing::Test {
 protected:
    TemporaryDirectory directory;
    testing::HostFileSystem disk;
    FaultyFileSystem faulty{disk};
    Ini ini{faulty};
    const std::string path = directory.Path("Kivu.ini");
};

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

TEST_F(IniDiskTest, PipeInPlaceOfTheProfileIsNeitherReadNorReplaced) {
    ASSERT_EQ(std::system(("mkfifo '" + path + "'").c_str()), 0);
    EXPECT_EQ(ini.ReadIniValue("Settings", "A", path, "1", true), "1");
    ini.WriteIniValue("Settings", "A", "2", path, true);
    EXPECT_TRUE(std::filesystem::is_fifo(path));
}

TEST_F(IniDiskTest, LinkedProfileStaysALink) {
    directory.Write("real.ini", "[Settings]\nA=1\n");
    std::filesystem::create_symlink("real.ini", path);
    ini.WriteIniValue("Settings", "A", "2", path, true);
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(directory.Read("real.ini"), "[Settings]\nA=2\r\n");
}

TEST_F(IniDiskTest, RightsOfTheProfileStay) {
    directory.Write("Kivu.ini", "");
    using std::filesystem::perms;
    std::filesystem::permissions(path, perms::owner_read | perms::owner_write);
    ini.WriteIniValue("Settings", "A", "2", path, true);
    EXPECT_EQ(std::filesystem::status(path).permissions(), perms::owner_read | perms::owner_write);
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
}  // namespace kivu::core
