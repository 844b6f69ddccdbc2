#include "support/files.h"

#include <gtest/gtest.h>

#include "testing/environment_variable.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_host.h"

namespace kivu::support {
namespace {

class FilesTest : public ::testing::Test {
 protected:
    void Put(const std::string& path) { disk.AddFile(path, path); }

    kivu::testing::MemoryFileSystem disk;
    kivu::testing::QuietHost host;
    Files files{{disk, host, host, host}};
};

TEST_F(FilesTest, MovesAFileAndSaysThatItIsThere) {
    Put("/a.txt");
    EXPECT_TRUE(files.FileMove("/a.txt", "/b.txt", false));
    EXPECT_FALSE(disk.FileExists("/a.txt"));
    EXPECT_EQ(disk.ReadFile("/b.txt"), "/a.txt");
}

TEST_F(FilesTest, ReplacesADestinationOnlyWhenTold) {
    Put("/a.txt");
    Put("/b.txt");
    EXPECT_FALSE(files.FileMove("/a.txt", "/b.txt", false));
    EXPECT_EQ(disk.ReadFile("/b.txt"), "/b.txt");
    EXPECT_TRUE(disk.FileExists("/a.txt"));
    EXPECT_TRUE(files.FileMove("/a.txt", "/b.txt", true));
    EXPECT_EQ(disk.ReadFile("/b.txt"), "/a.txt");
}

TEST_F(FilesTest, AFileOntoItselfLosesNothing) {
    Put("/a.txt");
    for (const char* same : {"/a.txt", "/./a.txt"}) {
        for (const bool overwrite : {false, true}) {
            EXPECT_FALSE(files.FileMove("/a.txt", same, overwrite));
            EXPECT_EQ(disk.ReadFile("/a.txt"), "/a.txt");
        }
    }
}

TEST_F(FilesTest, KeepsTheDestinationWhenTheSourceIsMissing) {
    Put("/b.txt");
    EXPECT_FALSE(files.FileMove("/a.txt", "/b.txt", true) && !disk.FileExists("/b.txt"));
    EXPECT_EQ(disk.ReadFile("/b.txt"), "/b.txt");
}

TEST_F(FilesTest, TellsOfAnEmptyParameter) {
    EXPECT_FALSE(files.FileMove("", "/b.txt", true));
    EXPECT_EQ(host.boxes,
              std::vector<std::string>{"File Move without parameter\rDestination:/b.txt"});
}

TEST_F(FilesTest, SplitsARegistryPathIntoRootKeyAndValue) {
    host.values["HKEY_CURRENT_USER|Software\\Some|Name"] = "x";
    EXPECT_EQ(files.RegistryGetAbsolutValue("HKEY_CURRENT_USER\\Software\\Some\\Name"), "x");
    EXPECT_EQ(files.RegistryGetAbsolutValue("HKEY_NOBODY\\Software\\Some\\Name"), "");
    EXPECT_EQ(files.RegistryGetAbsolutValue("without a backslash"), "");
}

TEST_F(FilesTest, PutsTheUsersDirectoryIntoAFolder) {
    host.values
        ["HKEY_USERS|.DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell "
         "Folders|Desktop"] = "%USERPROFILE%\\Desktop";
    const testing::EnvironmentVariable user("USERPROFILE", "C:\\Users\\me");
    EXPECT_EQ(files.GetDesktopPath(), "C:\\Users\\me\\Desktop");
    EXPECT_EQ(files.GetStartMenuPath(), "");
}

TEST_F(FilesTest, RunsProgramsAndBatchFilesThemselves) {
    Put("/x/Tool.EXE");
    Put("/x/a b.bat");
    Put("/x/read me.txt");
    EXPECT_TRUE(files.FileRun("/x/Tool.EXE"));
    EXPECT_TRUE(files.FileRun("/x/a b.bat"));
    EXPECT_TRUE(files.FileRun("/x/read me.txt"));
    EXPECT_FALSE(files.FileRun("/x/missing.exe"));
    EXPECT_EQ(host.runs, (std::vector<std::string>{"/x/Tool.EXE", "\"/x/a b.bat\""}));
    EXPECT_EQ(host.opened, std::vector<std::string>{"/x/read me.txt"});
}

}  // namespace
}  // namespace kivu::support
