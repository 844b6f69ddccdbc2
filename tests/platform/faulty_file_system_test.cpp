#include "testing/faulty_file_system.h"

#include "host_files.h"
#include "testing/temporary_directory.h"

namespace kivu::testing {
namespace {

using Step = FaultyFileSystem::Step;

class FaultyFileSystemTest : public ::testing::Test {
 protected:
    TemporaryDirectory directory;
    HostFileSystem real;
    FaultyFileSystem files{real};
};

TEST_F(FaultyFileSystemTest, WithoutAFaultEverythingPasses) {
    EXPECT_FALSE(files.WriteFile(directory.Path("a"), "1"));
    EXPECT_FALSE(files.AppendFile(directory.Path("a"), "2"));
    EXPECT_EQ(files.ReadFile(directory.Path("a")), "12");
    EXPECT_EQ(files.Writes(), 2);
    EXPECT_EQ(files.Failures(), 0);
}

TEST_F(FaultyFileSystemTest, OnlyTheNthCallFails) {
    files.FailOnce(Step::Rename, 2, std::errc::io_error);
    EXPECT_FALSE(files.WriteFile(directory.Path("a"), "1"));
    EXPECT_EQ(files.WriteFile(directory.Path("a"), "2"), std::errc::io_error);
    EXPECT_EQ(directory.Read("a"), "1");
    EXPECT_FALSE(files.WriteFile(directory.Path("a"), "3"));
    EXPECT_EQ(directory.Read("a"), "3");
    EXPECT_EQ(files.Failures(), 1);
}

TEST_F(FaultyFileSystemTest, AFullDiskStaysFullUntilHealed) {
    files.FillDisk();
    for (int trial = 0; trial < 3; ++trial)
        EXPECT_EQ(files.AppendFile(directory.Path("a"), "1"), std::errc::no_space_on_device);
    EXPECT_FALSE(real.FileExists(directory.Path("a")));
    files.Heal();
    EXPECT_FALSE(files.AppendFile(directory.Path("a"), "1"));
}

TEST_F(FaultyFileSystemTest, AReadOnlyDiskTakesNoChangeAtAll) {
    directory.Write("a", "1");
    files.MakeReadOnly();
    EXPECT_EQ(files.WriteFile(directory.Path("a"), "2"), std::errc::read_only_file_system);
    EXPECT_EQ(files.DeleteFile(directory.Path("a")), std::errc::read_only_file_system);
    EXPECT_EQ(files.MakeDirectory(directory.Path("d")), std::errc::read_only_file_system);
    EXPECT_EQ(files.ReadFile(directory.Path("a")), "1");
}

TEST_F(FaultyFileSystemTest, AFaultCanBeKeptToOnePath) {
    files.OnlyFor("Cache");
    files.FailFrom(Step::Flush, 2, std::errc::io_error);
    files.FailOnce(Step::Read, 1, std::errc::io_error);
    EXPECT_FALSE(files.WriteFile(directory.Path("Cache"), "1"));
    EXPECT_FALSE(files.WriteFile(directory.Path("other"), "1"));
    EXPECT_TRUE(files.WriteFile(directory.Path("Cache"), "2"));
    EXPECT_TRUE(files.WriteFile(directory.Path("Cache"), "2"));
    EXPECT_EQ(files.ReadFile(directory.Path("other")), "1");
    EXPECT_EQ(files.ReadFile(directory.Path("Cache")), std::nullopt);
    EXPECT_EQ(files.ReadFile(directory.Path("Cache")), "1");
}

}  // namespace
}  // namespace kivu::testing
