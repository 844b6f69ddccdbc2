#include "launch/mount_file.h"

#include <gmock/gmock.h>

#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::launch {
namespace {

using Way = MountFile::Way;
using ::testing::ElementsAre;

const std::string deamon = "C:\\Program Files\\DT\\deamon.exe";

TEST(MountFileForCmdTest, HasTheTwoToldLines) {
    const MountFile file = MountFileForCmd(deamon, "D:\\My CDs\\A & B.iso");
    EXPECT_EQ(file.way, Way::startFile);
    EXPECT_EQ(file.text,
              "\"C:\\Program Files\\DT\\deamon.exe\" -unmount 0\r\n"
              "\"C:\\Program Files\\DT\\deamon.exe\"   -mount 0, \"D:\\My CDs\\A & B.iso\"\r\n");
}

TEST(MountFileForCmdTest, NothingInAPathIsActedUpon) {
    const auto image = [](const std::string& game) {
        const MountFile file = MountFileForCmd("C:\\d.exe", game);
        EXPECT_EQ(file.way, Way::startFile) << game;
        const std::string head = "C:\\d.exe -unmount 0\r\nC:\\d.exe   -mount 0, ";
        EXPECT_TRUE(file.text.starts_with(head)) << file.text;
        return file.text.substr(head.size());
    };
    EXPECT_EQ(image("D:\\a.iso"), "D:\\a.iso\r\n");
    EXPECT_EQ(image("D:\\A&B.iso"), "\"D:\\A&B.iso\"\r\n");
    EXPECT_EQ(image("D:\\100%.cue"), "D:\\100%%.cue\r\n");
    EXPECT_EQ(image("D:\\a^b.iso"), "\"D:\\a^b.iso\"\r\n");
    EXPECT_EQ(image("D:\\it's (1)!$.iso"), "\"D:\\it's (1)!$.iso\"\r\n");
    EXPECT_EQ(image("D:\\\xC3\xBC.iso"), "D:\\\xC3\xBC.iso\r\n");
    const MountFile tool = MountFileForCmd("C:\\D&T\\100%.exe", "D:\\a.iso");
    EXPECT_TRUE(tool.text.starts_with("\"C:\\D&T\\100%%.exe\" -unmount 0\r\n")) << tool.text;
}

TEST(MountFileForCmdTest, WhatNoLineCanSayRunsDirectly) {
    for (const char* game : {"D:\\a\"b.iso", "D:\\a\nb.iso", "D:\\a\rb.iso",
                             "D:\\a\x1A"
                             "b.iso"}) {
        const MountFile file = MountFileForCmd("C:\\d.exe", game);
        EXPECT_EQ(file.way, Way::direct) << game;
        ASSERT_EQ(file.commands.size(), 2U);
        EXPECT_THAT(file.commands[0].words, ElementsAre("C:\\d.exe", "-unmount", "0"));
        EXPECT_THAT(file.commands[1].words, ElementsAre("C:\\d.exe", "-mount", "0,", game));
    }
}

TEST(MountFileForCmdTest, TheCommandsSayTheSame) {
    const MountFile file = MountFileForCmd(deamon, "D:\\My CDs\\100%.iso");
    ASSERT_EQ(file.commands.size(), 2U);
    EXPECT_EQ(file.commands[0].command, "\"C:\\Program Files\\DT\\deamon.exe\" -unmount 0");
    EXPECT_EQ(file.commands[1].command,
              "\"C:\\Program Files\\DT\\deamon.exe\"   -mount 0, \"D:\\My CDs\\100%.iso\"");
}

TEST(MountFileForCmdTest, ABatchFileIsCalled) {
    for (const char* tool : {"C:\\m.bat", "C:\\m.CMD"}) {
        const MountFile file = MountFileForCmd(tool, "D:\\My CDs\\a.iso");
        EXPECT_EQ(file.way, Way::startFile);
        EXPECT_EQ(file.text, std::string("call ") + tool + " -unmount 0\r\ncall " + tool +
                                 "   -mount 0, \"D:\\My CDs\\a.iso\"\r\n");
    }
    EXPECT_TRUE(MountFileForCmd("C:\\my m.bat", "D:\\a.iso")
                    .text.starts_with("call \"C:\\my m.bat\" -unmount 0\r\n"));
}

TEST(MountFileForCmdTest, ABatchFileGetsPlainPathsAlone) {
    for (const char* game :
         {"D:\\A&B.iso", "D:\\100%.iso", "D:\\a^b.iso", "D:\\a\"b.iso", "D:\\a\nb.iso"})
        EXPECT_EQ(MountFileForCmd("C:\\m.bat", game).way, Way::refused) << game;
    EXPECT_EQ(MountFileForCmd("C:\\R&D\\m.bat", "D:\\a.iso").way, Way::refused);
    // What cmd.exe does not act upon.
    EXPECT_EQ(MountFileForCmd("C:\\m.bat", "D:\\it's (1)!$.iso").way, Way::startFile);
}

std::string Shell(const std::string& tool, const std::string& game) {
    const MountFile file = MountFileForShell(tool, game, "/run/user/1/kivu-cd0");
    EXPECT_EQ(file.way, Way::startFile) << game;
    return file.text;
}

TEST(MountFileForShellTest, CdemuHasWordsOfItsOwn) {
    EXPECT_EQ(Shell("/usr/bin/cdemu", "/r/it's.iso"),
              "'/usr/bin/cdemu' 'unload' '0'\n"
              "'/usr/bin/cdemu' 'load' '0' '/r/it'\\''s.iso'\n");
}

TEST(MountFileForShellTest, FuseisoMountsAtItsPlace) {
    EXPECT_EQ(Shell("/usr/bin/fuseiso", "/r/a.iso"),
              "'fusermount' '-u' '/run/user/1/kivu-cd0'\n"
              "'/usr/bin/fuseiso' '-p' '/r/a.iso' '/run/user/1/kivu-cd0'\n");
}

TEST(MountFileForShellTest, EverythingElseGetsTheToldWords) {
    EXPECT_EQ(Shell("/opt/mnt.sh", "/r/it's.iso"),
              "'/opt/mnt.sh' '-unmount' '0'\n"
              "'/opt/mnt.sh' '-mount' '0,' '/r/it'\\''s.iso'\n");
    EXPECT_EQ(Shell("/opt/my cdemu", "/r/a"),
              "'/opt/my cdemu' '-unmount' '0'\n'/opt/my cdemu' '-mount' '0,' '/r/a'\n");
    EXPECT_EQ(Shell("/opt/cdemu/tool", "/r/a"),
              "'/opt/cdemu/tool' '-unmount' '0'\n'/opt/cdemu/tool' '-mount' '0,' '/r/a'\n");
}

TEST(MountFileForShellTest, NoCharacterIsActedUpon) {
    EXPECT_EQ(Shell("/o/$(a)", "/r/`b`;&|\"\\ \n%^!(c)"),
              "'/o/$(a)' '-unmount' '0'\n'/o/$(a)' '-mount' '0,' '/r/`b`;&|\"\\ \n%^!(c)'\n");
}

TEST(MountFileForShellTest, WindowsToolsRunThroughWine) {
    EXPECT_EQ(Shell("/opt/My Tool/d.EXE", "/r/A & B.iso"),
              "'wine' '/opt/My Tool/d.EXE' '-unmount' '0'\n"
              "'wine' '/opt/My Tool/d.EXE' '-mount' '0,' 'Z:\\r\\A & B.iso'\n");
    EXPECT_EQ(Shell("/opt/m.bat", "/r/my a.iso"),
              "'wine' '/opt/m.bat' '-unmount' '0'\n"
              "'wine' '/opt/m.bat' '-mount' '0,' 'Z:\\r\\my a.iso'\n");
    for (const char* game : {"/r/a&b", "/r/100%", "/r/a\"b", "/r/a\nb"})
        EXPECT_EQ(MountFileForShell("/opt/m.cmd", game, "/x").way, Way::refused) << game;
    EXPECT_EQ(MountFileForShell("/o&o/m.bat", "/r/a", "/x").way, Way::refused);
    EXPECT_EQ(MountFileForShell("/opt/d.exe", "/r/100%", "/x").way, Way::startFile);
}

TEST(FuseisoPlaceTest, IsTheUsersOwn) {
    EXPECT_EQ(FuseisoPlace("/run/user/1", "/k/Config/A/"), "/run/user/1/kivu-cd0");
    EXPECT_EQ(FuseisoPlace("", "/k/Config/A/"), "/k/Config/A/cd0");
    EXPECT_EQ(FuseisoPlace("", "/k/Config/A"), "/k/Config/A/cd0");
}

class FindMountToolTest : public ::testing::Test {
 protected:
    std::optional<std::string> Find(const std::string& setting) {
        return FindMountTool(setting, "/k/", files, starter);
    }
    testing::MemoryFileSystem files;
    testing::ScriptedStarter starter;
};

TEST_F(FindMountToolTest, APathFromTheRootIsMeantAsItStands) {
    files.AddFile("/usr/bin/cdemu", "");
    files.AddFile("/k/usr/bin/cdemu", "");
    EXPECT_EQ(Find("/usr/bin/cdemu"), "/usr/bin/cdemu");
    EXPECT_EQ(Find("\"/usr/bin/cdemu\""), "/usr/bin/cdemu");
    EXPECT_EQ(Find("/usr/bin/missing"), std::nullopt);
}

TEST_F(FindMountToolTest, ARelativeOneCountsFromTheProgramsDirectory) {
    files.AddFile("/k/tools/my mount.sh", "");
    files.AddFile("/tools/mount.sh", "");
    ASSERT_FALSE(files.ChangeDirectory("/"));
    EXPECT_EQ(Find("tools/my mount.sh"), "/k/tools/my mount.sh");
    EXPECT_EQ(Find(" \"tools/my mount.sh\" "), "/k/tools/my mount.sh");
    EXPECT_EQ(Find("../tools/mount.sh"), "/tools/mount.sh");
    EXPECT_EQ(Find("tools/mount.sh"), std::nullopt);
}

TEST_F(FindMountToolTest, ABareNameLiesBesideTheProgramOrOnTheSearchPath) {
    starter.path["cdemu"] = "/usr/bin/cdemu";
    EXPECT_EQ(Find("cdemu"), "/usr/bin/cdemu");
    EXPECT_EQ(Find("tools/cdemu"), std::nullopt);
    files.AddFile("/k/cdemu", "");
    EXPECT_EQ(Find("cdemu"), "/k/cdemu");
    EXPECT_EQ(Find("missing"), std::nullopt);
}

TEST_F(FindMountToolTest, NothingAndADirectoryAreNone) {
    files.AddDirectory("/k/cdemu");
    EXPECT_EQ(Find(""), std::nullopt);
    EXPECT_EQ(Find("\"\""), std::nullopt);
    EXPECT_EQ(Find("  "), std::nullopt);
    EXPECT_EQ(Find("cdemu"), std::nullopt);
    EXPECT_EQ(Find("/k"), std::nullopt);
}

TEST(FindMountToolOnWindows, UsesNoSearchPath) {
    testing::MemoryFileSystem files('\\');
    testing::ScriptedStarter starter;
    starter.usesShell = false;
    starter.path["deamon.exe"] = "C:\\Windows\\deamon.exe";
    files.AddFile("C:\\Kivu\\DT\\deamon.exe", "");
    const auto find = [&](const std::string& setting) {
        return FindMountTool(setting, "C:\\Kivu\\", files, starter);
    };
    EXPECT_EQ(find("\"C:\\Kivu\\DT\\deamon.exe\""), "C:\\Kivu\\DT\\deamon.exe");
    EXPECT_EQ(find("DT\\deamon.exe"), "C:\\Kivu\\DT\\deamon.exe");
    EXPECT_EQ(find("deamon.exe"), std::nullopt);
    EXPECT_EQ(find("C:\\Kivu\\DT"), std::nullopt);
}

}  // namespace
}  // namespace kivu::launch
