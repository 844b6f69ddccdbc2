#include "support/writable.h"

#include <gtest/gtest.h>

#include "testing/memory_file_system.h"

namespace kivu::support {
namespace {

TEST(Writable, ADirectoryThatTakesFilesIsAsItWasAfterwards) {
    testing::MemoryFileSystem files;
    files.AddDirectory("/k");
    files.AddFile("/k/Kivu0.tmp", "the user's");
    files.AddDirectory("/k/Kivu1.tmp");
    EXPECT_TRUE(CanWriteIn(files, "/k"));
    EXPECT_TRUE(CanWriteIn(files, "/k/"));
    EXPECT_EQ(files.BytesOf("/k/Kivu0.tmp"), "the user's");
    EXPECT_FALSE(files.FileExists("/k/Kivu2.tmp"));
}

TEST(Writable, OneThatTakesNoneOrIsNotThereIsNot) {
    testing::MemoryFileSystem files;
    files.AddDirectory("/k");
    EXPECT_FALSE(CanWriteIn(files, "/missing"));
    files.SetReadOnly("/k");
    EXPECT_FALSE(CanWriteIn(files, "/k"));
}

// A full disk makes a file and takes no byte of it.
class FullDisk : public testing::MemoryFileSystem {
 public:
    std::error_code AppendFile(const std::string& path, std::string_view) override {
        AddFile(path, "");
        return std::make_error_code(std::errc::no_space_on_device);
    }
};

TEST(Writable, NothingIsLeftOnAFullDisk) {
    FullDisk files;
    files.AddDirectory("/k");
    EXPECT_FALSE(CanWriteIn(files, "/k"));
    EXPECT_FALSE(files.FileExists("/k/Kivu0.tmp"));
}

TEST(Writable, PathsAreTheHosts) {
    testing::MemoryFileSystem files{'\\'};
    files.AddDirectory("C:\\Kivu");
    EXPECT_TRUE(CanWriteIn(files, "C:\\Kivu"));
    EXPECT_TRUE(CanWriteIn(files, "C:\\Kivu\\"));
}

}  // namespace
}  // namespace kivu::support
