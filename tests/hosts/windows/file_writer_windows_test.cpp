#include <cstdlib>

#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/scratch_directory.h"

namespace kivu::hosts {
namespace {

class FileWriterWindows : public ::testing::Test {
 protected:
    // As a program has it that lets nobody but readers near.
    Handle OpenElsewhere(const std::string& name) const {
        return Handle(::CreateFileW(directory.WidePath(name).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                    nullptr, OPEN_EXISTING, 0, nullptr));
    }
    std::optional<std::int64_t> CreationTicks(const std::string& name) const {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        if (!::GetFileAttributesExW(directory.WidePath(name).c_str(), GetFileExInfoStandard, &data))
            return std::nullopt;
        return std::int64_t{data.ftCreationTime.dwHighDateTime} << 32 |
               data.ftCreationTime.dwLowDateTime;
    }
    bool SetCreationTicks(const std::string& name, std::int64_t ticks) const {
        const Handle file(::CreateFileW(directory.WidePath(name).c_str(), FILE_WRITE_ATTRIBUTES, 0,
                                        nullptr, OPEN_EXISTING, 0, nullptr));
        const FILETIME time{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
        return ::SetFileTime(file.Get(), &time, nullptr, nullptr) != 0;
    }

    // A file that was written so long ago.
    void WriteLongAgo(const std::string& name, int hours) const {
        directory.Write(name, "half");
        const Handle file(::CreateFileW(directory.WidePath(name).c_str(), FILE_WRITE_ATTRIBUTES, 0,
                                        nullptr, OPEN_EXISTING, 0, nullptr));
        FILETIME now{};
        ::GetSystemTimeAsFileTime(&now);
        const std::int64_t ticks = (std::int64_t{now.dwHighDateTime} << 32 | now.dwLowDateTime) -
                                   std::int64_t{hours} * 60 * 60 * 10'000'000;
        const FILETIME time{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
        ASSERT_NE(::SetFileTime(file.Get(), nullptr, nullptr, &time), 0);
    }

    testing::ScratchDirectory directory;
    WindowsFileSystem files;
};

TEST_F(FileWriterWindows, ReplacesAFileWhateverItsCase) {
    EXPECT_FALSE(files.WriteFile(directory.Path("file"), "old"));
    EXPECT_FALSE(files.WriteFile(directory.Path("FILE"), ""));
    EXPECT_EQ(directory.Read("file"), "");
    EXPECT_EQ(directory.Count(), 1u);
}

TEST_F(FileWriterWindows, AWriteTakesAwayWhatKilledOnesHaveLeftBehindLongAgo) {
    WriteLongAgo(".kivu-1f-2a-0.tmp", 25);
    WriteLongAgo(".kivu-1f-2a-1.tmp", 25);
    WriteLongAgo(".kivu-3f-2a-0.tmp", 23);
    WriteLongAgo(".other-1-2-3.tmp", 25);
    EXPECT_FALSE(files.WriteFile(directory.Path("file"), "x"));
    EXPECT_EQ(directory.Read(".kivu-3f-2a-0.tmp"), "half");
    EXPECT_EQ(directory.Read(".other-1-2-3.tmp"), "half");
    EXPECT_EQ(directory.Count(), 3u);
}

TEST_F(FileWriterWindows, ANewFileIsAnOrdinaryOne) {
    EXPECT_FALSE(files.WriteFile(directory.Path("file"), "x"));
    constexpr DWORD special =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY;
    EXPECT_EQ(directory.Attributes("file") & special, 0u);
    EXPECT_TRUE(files.FileExists(directory.Path("file")));
}

TEST_F(FileWriterWindows, ReplacingIsOneStepAndNotAWriteIntoTheOldFile) {
    directory.Write("file", "old");
    ASSERT_TRUE(::CreateHardLinkW(directory.WidePath("other").c_str(),
                                  directory.WidePath("file").c_str(), nullptr));
    EXPECT_FALSE(files.WriteFile(directory.Path("file"), "new"));
    EXPECT_EQ(directory.Read("file"), "new");
    EXPECT_EQ(directory.Read("other"), "old");
    EXPECT_EQ(directory.Count(), 2u);
}

TEST_F(FileWriterWindows, AReplacedFileKeepsItsAttributes) {
    directory.Write("file", "old");
    constexpr DWORD attributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    if (!directory.SetAttributes("file", attributes))
        GTEST_SKIP() << "this disk keeps no attributes";
    EXPECT_FALSE(files.WriteFile(directory.Path("file"), "new"));
    EXPECT_EQ(directory.Read("file"), "new");
    EXPECT_EQ(directory.Attributes("file") & attributes, attributes);
}

TEST_F(FileWriterWindows, AReplacedFileKeepsItsTimeOfCreation) {
    directory.Write("file", "old");
    constexpr std::int64_t the1990s = 0x1BB'0000'0000'0000;
    ASSERT_TRUE(SetCreationTicks("file", the1990s));
    if (CreationTicks("file") != the1990s)
        GTEST_SKIP() << "no times of creation here: Wine gives that of the last change";
    EXPECT_FALSE(files.WriteFile(directory.Path("file"), "new"));
    EXPECT_EQ(CreationTicks("file"), the1990s);
}

TEST_F(FileWriterWindows, AReadOnlyFileIsLeftAlone) {
    directory.Write("file", "old");
    ASSERT_TRUE(directory.SetAttributes("file", FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(files.WriteFile(directory.Path("file"), "new"), std::errc::permission_denied);
    EXPECT_EQ(files.AppendFile(directory.Path("file"), "new"), std::errc::permission_denied);
    EXPECT_EQ(files.DeleteFile(directory.Path("file")), std::errc::permission_denied);
    EXPECT_EQ(directory.Read("file"), "old");
    EXPECT_EQ(directory.Count(), 1u);
}

TEST_F(FileWriterWindows, AFileThatSomebodyKeepsOpenStaysWhole) {
    directory.Write("file", "old");
    const Handle open = OpenElsewhere("file");
    ASSERT_TRUE(open);
    EXPECT_TRUE(files.WriteFile(directory.Path("file"), "new"));
    EXPECT_TRUE(files.AppendFile(directory.Path("file"), "new"));
    EXPECT_EQ(directory.Read("file"), "old");
    EXPECT_EQ(directory.Count(), 1u);
}

TEST_F(FileWriterWindows, NeverReplacesADirectoryNorWritesBesideIt) {
    directory.MakeDirectory("sub");
    EXPECT_EQ(files.WriteFile(directory.Path("sub"), "x"), std::errc::is_a_directory);
    EXPECT_EQ(files.AppendFile(directory.Path("sub"), "x"), std::errc::is_a_directory);
    for (const std::string name : {"new\\", "new/", "missing\\file", "a*b", "a:b", "sub\\..\\"}) {
        EXPECT_TRUE(files.WriteFile(directory.Path(name), "x")) << name;
        EXPECT_TRUE(files.AppendFile(directory.Path(name), "x")) << name;
    }
    EXPECT_TRUE(files.WriteFile("", "x"));
    EXPECT_TRUE(files.AppendFile("", "x"));
    EXPECT_TRUE(files.WriteFile("C:\\", "x"));
    EXPECT_EQ(directory.Count(), 1u);
}

TEST_F(FileWriterWindows, ALargeFileIsWrittenInBlocks) {
    std::string bytes(40'000'000, 'x');
    bytes[16 << 20] = bytes[32 << 20] = 'y';
    EXPECT_FALSE(files.WriteFile(directory.Path("file"), bytes));
    EXPECT_EQ(files.ReadFile(directory.Path("file")), bytes);
}

// A lock keeps the second block of what is written from arriving.
TEST_F(FileWriterWindows, AnAppendThatFailsHalfwayIsTakenBack) {
    directory.Write("file", "old");
    const Handle locker(::CreateFileW(directory.WidePath("file").c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                      nullptr));
    OVERLAPPED place{};
    place.Offset = 20'000'000;
    ASSERT_TRUE(::LockFileEx(locker.Get(), LOCKFILE_EXCLUSIVE_LOCK, 0, 1000, 0, &place));
    const auto failure = files.AppendFile(directory.Path("file"), std::string(40'000'000, 'x'));
    if (!failure) GTEST_SKIP() << "locks keep nobody from writing here: Wine's are a wish";
    ::UnlockFileEx(locker.Get(), 0, 1000, 0, &place);
    EXPECT_EQ(directory.Read("file"), "old");
}

// KIVU_SMALL_DISK names an empty disk of 64 KB.
TEST_F(FileWriterWindows, AFullDiskKeepsTheOldFile) {
    const char* disk = std::getenv("KIVU_SMALL_DISK");
    if (disk == nullptr) GTEST_SKIP() << "KIVU_SMALL_DISK names no disk of 64 KB";
    const std::string file = disk + std::string("\\file");
    const std::string large(100'000, 'x');
    EXPECT_FALSE(files.WriteFile(file, "old"));
    EXPECT_EQ(files.WriteFile(file, large), std::errc::no_space_on_device);
    EXPECT_EQ(files.ReadFile(file), "old");
    EXPECT_EQ(files.AppendFile(file, large), std::errc::no_space_on_device);
    EXPECT_EQ(files.ReadFile(file), "old");
    EXPECT_EQ(files.AppendFile(disk + std::string("\\other"), large),
              std::errc::no_space_on_device);
    EXPECT_EQ(files.ListDirectory(disk).value().size(), 1u);
    EXPECT_FALSE(files.DeleteFile(file));
}

}  // namespace
}  // namespace kivu::hosts
