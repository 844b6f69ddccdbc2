#include "testing/memory_file_system.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace kivu::testing {
namespace {

std::vector<std::string> Names(const MemoryFileSystem& disk, const std::string& path) {
    std::vector<std::string> names;
    const auto entries = disk.ListDirectory(path);
    if (!entries) return {"(no directory)"};
    for (const auto& entry : *entries) {
        names.push_back(entry.name + (entry.isDirectory ? "/" : ""));
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST(MemoryFileSystem, FilesAreWrittenReadAppendedAndDeleted) {
    MemoryFileSystem disk;
    EXPECT_FALSE(disk.MakeDirectory("/a"));
    EXPECT_FALSE(disk.MakeDirectory("/a"));
    EXPECT_FALSE(disk.WriteFile("/a/f", "1"));
    EXPECT_FALSE(disk.AppendFile("/a/f", "2"));
    EXPECT_EQ(disk.ReadFile("/a/f"), "12");
    EXPECT_FALSE(disk.DeleteFile("/a/f"));
    EXPECT_EQ(disk.ReadFile("/a/f"), std::nullopt);
    EXPECT_EQ(disk.DeleteFile("/a/f"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(disk.WriteFile("/b/f", "1"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(disk.WriteFile("/a", "1"), std::errc::is_a_directory);
    EXPECT_EQ(disk.DeleteFile("/a"), std::errc::is_a_directory);
    EXPECT_EQ(disk.MakeDirectory("/x/y"), std::errc::no_such_file_or_directory);
}

TEST(MemoryFileSystem, DirectoryLeavesOutHiddenNamesLineEndsAndDanglingLinks) {
    MemoryFileSystem disk;
    disk.AddFile("/d/f.adf", "");
    disk.AddFile("/d/sub/deep", "");
    disk.AddFile("/d/.hidden", "");
    disk.AddFile("/d/a\nb", "");
    disk.AddLink("/d/to_file", "f.adf");
    disk.AddLink("/d/to_sub", "/d/sub");
    disk.AddLink("/d/dangling", "/nowhere");
    EXPECT_EQ(Names(disk, "/d"), (std::vector<std::string>{"f.adf", "sub/", "to_file", "to_sub/"}));
    EXPECT_EQ(Names(disk, "/d/f.adf"), std::vector<std::string>{"(no directory)"});
    disk.SetUnreadable("/d");
    EXPECT_EQ(Names(disk, "/d"), std::vector<std::string>{"(no directory)"});
}

TEST(MemoryFileSystem, EmptyQuotedAndDirectoryPathsAreNoFiles) {
    MemoryFileSystem disk;
    disk.AddFile("/d/f", "");
    disk.AddFile("/d/*", "");
    EXPECT_TRUE(disk.FileExists("/d/f"));
    EXPECT_TRUE(disk.FileExists("/d/../d/./*"));
    for (const std::string path : {"", "\"/d/f\"", "/d", "/d/", "/d/f/", "/d/?"}) {
        EXPECT_FALSE(disk.FileExists(path)) << path;
    }
}

TEST(MemoryFileSystem, LinksLeadToTheSameIdentityAndCirclesNowhere) {
    MemoryFileSystem disk;
    disk.AddFile("/real/f", "x");
    disk.AddLink("/alias", "real");
    disk.AddLink("/loop", "/loop");
    EXPECT_EQ(disk.IdentityOf("/alias"), disk.IdentityOf("/real"));
    EXPECT_NE(disk.IdentityOf("/real/f"), disk.IdentityOf("/real"));
    EXPECT_TRUE(disk.IsLink("/alias"));
    EXPECT_FALSE(disk.IsLink("/alias/f"));
    EXPECT_EQ(disk.ResolvedPath("/alias/f"), "/real/f");
    EXPECT_EQ(disk.ResolvedPath("/loop"), "/loop");
    EXPECT_EQ(disk.ReadFile("/alias/f"), "x");
    EXPECT_FALSE(disk.WriteFile("/alias/f", "y"));
    EXPECT_EQ(disk.BytesOf("/real/f"), "y");
    EXPECT_EQ(disk.IdentityOf("/loop"), std::nullopt);
    EXPECT_FALSE(disk.DeleteFile("/alias"));
    EXPECT_EQ(disk.BytesOf("/real/f"), "y");
}

TEST(MemoryFileSystem, RelativePathsStartAtTheCurrentDirectory) {
    MemoryFileSystem disk;
    disk.AddFile("/d/e/f", "x");
    EXPECT_EQ(disk.CurrentDirectory(), "/");
    EXPECT_FALSE(disk.ChangeDirectory("d"));
    EXPECT_FALSE(disk.ChangeDirectory("e"));
    EXPECT_EQ(disk.CurrentDirectory(), "/d/e");
    EXPECT_EQ(disk.ReadFile("../e/f"), "x");
    EXPECT_TRUE(disk.ChangeDirectory("f"));
    EXPECT_EQ(disk.CurrentDirectory(), "/d/e");
}

TEST(MemoryFileSystem, FullDiskRefusesAndKeepsTheOldFile) {
    MemoryFileSystem disk;
    disk.AddFile("/f", "old content");
    disk.SetFreeSpace(4);
    EXPECT_EQ(disk.WriteFile("/f", "12345"), std::errc::no_space_on_device);
    EXPECT_EQ(disk.AppendFile("/f", "12345"), std::errc::no_space_on_device);
    EXPECT_EQ(disk.BytesOf("/f"), "old content");
    EXPECT_FALSE(disk.WriteFile("/f", "1234"));
    EXPECT_FALSE(disk.WriteFile("/g", "12345678901"));
    EXPECT_EQ(disk.WriteFile("/h", "1"), std::errc::no_space_on_device);
    EXPECT_EQ(disk.BytesOf("/h"), "(no file)");
}

TEST(MemoryFileSystem, FaultsAreGivenWhereAskedFor) {
    MemoryFileSystem disk;
    disk.AddFile("/d/f", "x");
    disk.SetReadOnly("/d/f");
    EXPECT_EQ(disk.WriteFile("/d/f", "y"), std::errc::permission_denied);
    disk.SetReadOnly("/d/f", false);
    disk.SetReadOnly("/d");
    EXPECT_EQ(disk.WriteFile("/d/new", "y"), std::errc::permission_denied);
    EXPECT_EQ(disk.DeleteFile("/d/f"), std::errc::permission_denied);
    disk.SetReadOnly("/d", false);
    disk.FailChanges(std::errc::io_error, 1);
    EXPECT_EQ(disk.WriteFile("/d/f", "y"), std::errc::io_error);
    EXPECT_FALSE(disk.WriteFile("/d/f", "y"));
    disk.SetUnreadable("/d/f");
    EXPECT_EQ(disk.ReadFile("/d/f"), std::nullopt);
    EXPECT_EQ(disk.changes, std::vector<std::string>{"/d/f"});
}

TEST(MemoryFileSystem, WindowsPathsHaveDrivesAndNoCase) {
    MemoryFileSystem disk('\\');
    disk.AddFile("D:\\Games\\Äpfel.adf", "x");
    EXPECT_TRUE(disk.FileExists("d:\\GAMES\\äPFEL.ADF"));
    EXPECT_TRUE(disk.FileExists("D:/Games/Äpfel.adf"));
    EXPECT_EQ(Names(disk, "D:\\"), std::vector<std::string>{"Games/"});
    EXPECT_EQ(disk.CurrentDirectory(), "C:\\");
    EXPECT_FALSE(disk.ChangeDirectory("D:\\Games"));
    EXPECT_EQ(disk.CurrentDirectory(), "D:\\Games");
    EXPECT_TRUE(disk.FileExists("\\Games\\Äpfel.adf"));
    EXPECT_EQ(disk.EncodeText("Ä€中"), "\xC4\x80?");
    EXPECT_EQ(disk.DecodeText("\xC4\x80"), "Ä€");
}

TEST(MemoryFileSystem, LinuxTextIsUtf8OrWindows1252) {
    const MemoryFileSystem disk;
    EXPECT_EQ(disk.DecodeText("Ä"), "Ä");
    EXPECT_EQ(disk.DecodeText("\xC4"), "Ä");
    EXPECT_EQ(disk.EncodeText("Ä\xC4"), "Ä\xC4");
}

TEST(MemoryFileSystem, ShortNamesAreTheOnesThatWereSet) {
    MemoryFileSystem disk('\\');
    disk.SetShortName("C:\\Program Files", "C:\\PROGRA~1");
    EXPECT_EQ(disk.ShortPathName("C:\\Program Files"), "C:\\PROGRA~1");
    EXPECT_EQ(disk.LongPathName("C:\\PROGRA~1"), "C:\\Program Files");
    EXPECT_EQ(disk.ShortPathName("\"C:\\x\""), "C:\\x");
}

}  // namespace
}  // namespace kivu::testing
