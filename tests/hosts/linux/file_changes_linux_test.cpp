#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "hosts/linux/as_user.h"
#include "hosts/linux/file_system_linux.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;

namespace kivu::hosts {
namespace {

class FileChangesLinux : public ::testing::Test {
 protected:
    kivu::testing::TemporaryDirectory directory;
    LinuxFileSystem files;
};

TEST_F(FileChangesLinux, DeletesFilesAndLinksOnly) {
    directory.Write("file", "x");
    fs::create_symlink("file", directory.Path("link"));
    fs::create_directory(directory.Path("sub"));
    EXPECT_FALSE(files.DeleteFile(directory.Path("link")));
    EXPECT_TRUE(files.FileExists(directory.Path("file")));
    EXPECT_FALSE(files.DeleteFile(directory.Path("file")));
    EXPECT_EQ(files.DeleteFile(directory.Path("file")), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(files.DeleteFile(directory.Path("sub")));
    EXPECT_TRUE(files.DeleteFile(""));
    EXPECT_EQ(directory.Count(), 1u);
}

TEST_F(FileChangesLinux, AMoveToAFullDiskLeavesTheFileWhereItWas) {
    const std::string disk = directory.Path("disk");
    ASSERT_FALSE(files.MakeDirectory(disk));
    if (::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "a disk of 64 KB needs the right to mount one";
    directory.Write("large", std::string(200'000, 'x'));
    directory.Write("small", "x");
    directory.Write("disk/taken", "y");
    EXPECT_TRUE(files.MoveFile(directory.Path("large"), disk + "/large"));
    EXPECT_EQ(directory.Read("large").size(), 200'000u);
    EXPECT_FALSE(files.FileExists(disk + "/large"));
    EXPECT_EQ(files.MoveFile(directory.Path("small"), disk + "/taken"), std::errc::file_exists);
    EXPECT_EQ(directory.Read("disk/taken"), "y");
    EXPECT_FALSE(files.MoveFile(directory.Path("small"), disk + "/small"));
    EXPECT_EQ(directory.Read("disk/small"), "x");
    EXPECT_FALSE(files.FileExists(directory.Path("small")));
    EXPECT_EQ(::umount(disk.c_str()), 0);
}

TEST_F(FileChangesLinux, AFileKnowsWhenItWasMade) {
    const std::int64_t before = std::time(nullptr);
    directory.Write("file", "x");
    const auto made = files.CreationTime(directory.Path("file"));
    ASSERT_TRUE(made);
    // The kernel stamps files by its coarse clock.
    EXPECT_GE(*made, before - 1);
    EXPECT_LE(*made, std::time(nullptr));
    EXPECT_EQ(files.CreationTime(directory.Path("missing")), std::nullopt);
}

}  // namespace
}  // namespace kivu::hosts
