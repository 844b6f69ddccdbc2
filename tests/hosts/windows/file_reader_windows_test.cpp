#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/scratch_directory.h"

namespace kivu::hosts {
namespace {

class FileReaderWindows : public ::testing::Test {
 protected:
    static std::string ReadThrough(platform::FileSystem::Reader& reader, std::size_t block) {
        std::string bytes, buffer(block, '\0');
        while (const std::size_t count = reader.Read(buffer.data(), buffer.size()))
            bytes.append(buffer, 0, count);
        return bytes;
    }
    void Cut(const std::string& name, std::int64_t size) const {
        const Handle file(::CreateFileW(directory.WidePath(name).c_str(), GENERIC_WRITE,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                        0, nullptr));
        LARGE_INTEGER end{};
        end.QuadPart = size;
        constexpr DWORD setSparse = 0x900C4;  // FSCTL_SET_SPARSE
        DWORD count = 0;
        ::DeviceIoControl(file.Get(), setSparse, nullptr, 0, nullptr, 0, &count, nullptr);
        EXPECT_TRUE(::SetFilePointerEx(file.Get(), end, nullptr, FILE_BEGIN) &&
                    ::SetEndOfFile(file.Get()));
    }

    testing::ScratchDirectory directory;
    WindowsFileSystem files;
};

TEST_F(FileReaderWindows, ReadsOnlyFiles) {
    directory.Write("empty", "");
    EXPECT_NE(files.OpenFile(directory.Path("empty")), nullptr);
    for (const std::string& path :
         {directory.Root(), directory.Path("missing"), directory.Path("empty\\"), std::string(),
          std::string("NUL"), directory.Path(std::string("empty\0", 6))}) {
        EXPECT_EQ(files.OpenFile(path), nullptr) << path;
        EXPECT_EQ(files.ReadFile(path), std::nullopt) << path;
    }
}

TEST_F(FileReaderWindows, AFileTooLargeForTheMemoryIsNotReadWholeButInBlocks) {
    directory.Write("sparse", "x");
    Cut("sparse", std::int64_t{WindowsFileSystem::maxFileSize} + 1);
    EXPECT_EQ(files.ReadFile(directory.Path("sparse")), std::nullopt);
    const auto reader = files.OpenFile(directory.Path("sparse"));
    ASSERT_NE(reader, nullptr);
    char first = 0;
    EXPECT_EQ(reader->Read(&first, 1), 1U);
    EXPECT_EQ(first, 'x');
}

TEST_F(FileReaderWindows, ReadingKeepsNobodyFromWritingMovingOrDeleting) {
    directory.Write("file", std::string(100, 'x'));
    const auto reader = files.OpenFile(directory.Path("file"));
    ASSERT_NE(reader, nullptr);
    EXPECT_FALSE(files.AppendFile(directory.Path("file"), "more"));
    EXPECT_FALSE(files.MoveFile(directory.Path("file"), directory.Path("moved")));
    EXPECT_FALSE(files.DeleteFile(directory.Path("moved")));
    EXPECT_EQ(ReadThrough(*reader, 60), std::string(100, 'x') + "more");
}

TEST_F(FileReaderWindows, AFileThatIsCutEndsEarlier) {
    directory.Write("file", std::string(100, 'x'));
    const auto reader = files.OpenFile(directory.Path("file"));
    ASSERT_NE(reader, nullptr);
    char buffer[60];
    EXPECT_EQ(reader->Read(buffer, 60), 60U);
    Cut("file", 10);
    EXPECT_EQ(reader->Read(buffer, 60), 0U);
}

}  // namespace
}  // namespace kivu::hosts
