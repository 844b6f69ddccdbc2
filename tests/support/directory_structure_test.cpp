#include <gtest/gtest.h>

#include "support/files.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_host.h"

namespace kivu::support {
namespace {

// The text file of the tree, each "\r\n" as "|".
class DirectoryStructureTest : public ::testing::Test {
 protected:
    bool Write(const std::string& extension, bool append = false,
               const std::string& source = "/roms") {
        return files.ReadDirctoryStructureToFile(source, target, extension, append);
    }
    std::string Lines() const {
        std::string text = disk.BytesOf(target);
        for (std::size_t at; (at = text.find("\r\n")) != std::string::npos;)
            text.replace(at, 2, "|");
        return text;
    }

    kivu::testing::MemoryFileSystem disk;
    kivu::testing::QuietHost host;
    Files files{{disk, host, host, host}};
    std::string target = "/list.txt";
};

TEST_F(DirectoryStructureTest, HoldsTheWholePathOfEachFileOfTheEndingInOrder) {
    for (const char* path : {"/roms/b.adf", "/roms/A.adf", "/roms/note.txt", "/roms/z/c.ADF",
                             "/roms/e/d.adf", "/roms/e/f/g.adf"})
        disk.AddFile(path, "x");
    const std::string all = "/roms/A.adf|/roms/b.adf|/roms/e/d.adf|/roms/e/f/g.adf|/roms/z/c.ADF|";
    for (const char* extension : {"adf", ".adf", "*.adf", "ADF"}) {
        EXPECT_TRUE(Write(extension));
        EXPECT_EQ(Lines(), all) << extension;
    }
}

TEST_F(DirectoryStructureTest, WithoutAnEndingAllFilesAreMeant) {
    disk.AddFile("/roms/a.adf", "x");
    disk.AddFile("/roms/readme", "x");
    for (const char* extension : {"", "*", "*.*", ".*"}) {
        EXPECT_TRUE(Write(extension));
        EXPECT_EQ(Lines(), "/roms/a.adf|/roms/readme|") << extension;
    }
}

TEST_F(DirectoryStructureTest, AddsBehindWhatThereIsOrReplacesIt) {
    disk.AddFile("/roms/a.adf", "x");
    disk.AddFile(target, "before\r\n");
    EXPECT_TRUE(Write("adf", true));
    EXPECT_EQ(Lines(), "before|/roms/a.adf|");
    EXPECT_TRUE(Write("adf", false));
    EXPECT_EQ(Lines(), "/roms/a.adf|");
}

TEST_F(DirectoryStructureTest, LeavesItselfOut) {
    disk.AddFile("/roms/a.txt", "x");
    target = "/roms/list.txt";
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(Write("txt"));
        EXPECT_EQ(Lines(), "/roms/a.txt|");
    }
    disk.AddFile("/roms/sub/list.txt", "another of the same name");
    EXPECT_TRUE(Write("txt"));
    EXPECT_EQ(Lines(), "/roms/a.txt|/roms/sub/list.txt|");
}

TEST_F(DirectoryStructureTest, EntersADirectoryOnceWhateverLinksLeadThere) {
    disk.AddFile("/roms/a/x.adf", "x");
    disk.AddLink("/roms/b", "/roms/a");
    disk.AddLink("/roms/a/loop", "/roms");
    EXPECT_TRUE(Write("adf"));
    EXPECT_EQ(Lines(), "/roms/a/x.adf|");
}

TEST_F(DirectoryStructureTest, UnreadableDirectoryIsSkipped) {
    disk.AddFile("/roms/a/x.adf", "x");
    disk.AddFile("/roms/b/y.adf", "x");
    disk.SetUnreadable("/roms/a");
    EXPECT_TRUE(Write("adf"));
    EXPECT_EQ(Lines(), "/roms/b/y.adf|");
}

TEST_F(DirectoryStructureTest, UnreadableSourceLeavesTheFileAsItWas) {
    disk.AddFile(target, "kept");
    EXPECT_FALSE(Write("adf"));
    EXPECT_FALSE(Write("adf", false, ""));
    disk.AddDirectory("/roms");
    disk.SetUnreadable("/roms");
    EXPECT_FALSE(Write("adf"));
    EXPECT_EQ(Lines(), "kept");
}

TEST_F(DirectoryStructureTest, ReadOnlyOrFullDiskIsTold) {
    disk.AddFile("/roms/a.adf", "x");
    disk.AddFile(target, "kept");
    disk.SetFreeSpace(1);
    EXPECT_FALSE(Write("adf"));
    EXPECT_FALSE(Write("adf", true));
    EXPECT_EQ(Lines(), "kept");
    EXPECT_FALSE(files.ReadDirctoryStructureToFile("/roms", "", "adf", false));
}

TEST_F(DirectoryStructureTest, RelativeSourceGivesWholePaths) {
    disk.AddFile("/roms/sub/a.adf", "x");
    ASSERT_FALSE(disk.ChangeDirectory("/roms"));
    for (const char* source : {"sub", "./sub/", "../roms/sub"}) {
        EXPECT_TRUE(Write("adf", false, source));
        EXPECT_EQ(Lines(), "/roms/sub/a.adf|") << source;
    }
    EXPECT_TRUE(Write("adf", false, "/roms/sub/"));
    EXPECT_EQ(Lines(), "/roms/sub/a.adf|");
}

TEST_F(DirectoryStructureTest, NameKeepsItsBytes) {
    disk.AddFile("/roms/\xe4 b.adf", "x");
    disk.AddFile("/roms/Übel.adf", "x");
    EXPECT_TRUE(Write("adf"));
    EXPECT_NE(Lines().find("/roms/\xe4 b.adf|"), std::string::npos);
    EXPECT_NE(Lines().find("/roms/Übel.adf|"), std::string::npos);
}

TEST(DirectoryStructureOnWindows, IsWrittenInTheCodePage) {
    kivu::testing::MemoryFileSystem disk('\\');
    kivu::testing::QuietHost host;
    Files files{{disk, host, host, host}};
    disk.AddFile("C:\\Roms\\Übel.adf", "x");
    EXPECT_TRUE(files.ReadDirctoryStructureToFile("C:\\Roms", "C:\\list.txt", "adf", false));
    EXPECT_EQ(disk.BytesOf("C:\\list.txt"),
              "C:\\Roms\\\xdc"
              "bel.adf\r\n");
}

}  // namespace
}  // namespace kivu::support
