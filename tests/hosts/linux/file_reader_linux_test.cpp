#include <gtest/gtest.h>
#include <sys/stat.h>

#include "hosts/linux/file_system_linux.h"
#include "testing/temporary_directory.h"

namespace kivu::hosts {
namespace {

class FileReader : public ::testing::Test {
 protected:
    std::string ReadThrough(platform::FileSystem::Reader& reader, std::size_t block) {
        std::string bytes, buffer(block, '\0');
        while (const std::size_t count = reader.Read(buffer.data(), buffer.size()))
            bytes.append(buffer, 0, count);
        return bytes;
    }

    testing::TemporaryDirectory directory;
    LinuxFileSystem files;
};

TEST_F(FileReader, OpensOnlyFiles) {
    directory.Write("empty", "");
    ::mkfifo(directory.Path("pipe").c_str(), 0600);
    EXPECT_NE(files.OpenFile(directory.Path("empty")), nullptr);
    for (const std::string& path :
         {directory.Root(), directory.Path("missing"), directory.Path("pipe"),
          std::string("/dev/zero"), std::string(), directory.Path(std::string("empty\0", 6))}) {
        EXPECT_EQ(files.OpenFile(path), nullptr) << path;
    }
}

TEST_F(FileReader, AFileThatGoesAwayIsReadToItsEnd) {
    directory.Write("file", "left behind");
    const auto reader = files.OpenFile(directory.Path("file"));
    ASSERT_NE(reader, nullptr);
    std::filesystem::remove(directory.Path("file"));
    EXPECT_EQ(ReadThrough(*reader, 4), "left behind");
}

TEST_F(FileReader, AFileThatIsCutEndsEarlier) {
    directory.Write("file", std::string(100, 'x'));
    const auto reader = files.OpenFile(directory.Path("file"));
    ASSERT_NE(reader, nullptr);
    char buffer[60];
    EXPECT_EQ(reader->Read(buffer, 60), 60U);
    std::filesystem::resize_file(directory.Path("file"), 10);
    EXPECT_EQ(reader->Read(buffer, 60), 0U);
}

}  // namespace
}  // namespace kivu::hosts
