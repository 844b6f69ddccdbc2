// Profiles that are no plain files, and their rights.
#include <cstdlib>
#include <filesystem>

#include "profile/ini_disk.h"

namespace kivu::profile {
namespace {

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

}  // namespace
}  // namespace kivu::profile
