#include <gmock/gmock.h>

#include "launch/helpers_room.h"

namespace kivu::launch {
namespace {

using platform::WindowStyle;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct MountShell : ::testing::Test, HelpersRoom {
    MountShell() : HelpersRoom('/') {}
};
struct MountCmd : ::testing::Test, HelpersRoom {
    MountCmd() : HelpersRoom('\\') {}
};

TEST_F(MountCmd, TheStartFileIsWaitedForAndGoneAfterwards) {
    Tool("C:\\Program Files\\DT\\deamon.exe");
    EXPECT_TRUE(helpers.MountGameImage("\"D:\\My CDs\\A & B.iso\""));
    EXPECT_EQ(OnlyScript(),
              "\"C:\\Program Files\\DT\\deamon.exe\" -unmount 0\r\n"
              "\"C:\\Program Files\\DT\\deamon.exe\"   -mount 0, \"D:\\My CDs\\A & B.iso\"\r\n");
    const platform::StartRequest& run = OnlyRun().request;
    EXPECT_EQ(run.command, "\"" + MountFileName() + "\"");
    EXPECT_THAT(run.words, ElementsAre(MountFileName()));
    EXPECT_TRUE(run.startFile);
    EXPECT_TRUE(run.wait);
    EXPECT_FALSE(run.watched);
    EXPECT_EQ(run.style, WindowStyle::MinimizedNoFocus);
    EXPECT_FALSE(files.FileExists(MountFileName()));
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
    // The next one writes it anew.
    EXPECT_TRUE(helpers.MountGameImage("D:\\2.iso"));
    EXPECT_EQ(host.starter.runs.size(), 2U);
    EXPECT_FALSE(files.FileExists(MountFileName()));
}

TEST_F(MountCmd, ABatchToolIsCalledAndGetsOnlyPlainNames) {
    Tool("C:\\dt\\mount.bat");
    EXPECT_TRUE(helpers.MountGameImage("D:\\a.iso"));
    EXPECT_EQ(OnlyScript(),
              "call C:\\dt\\mount.bat -unmount 0\r\n"
              "call C:\\dt\\mount.bat   -mount 0, D:\\a.iso\r\n");
    host.starter.runs.clear();
    EXPECT_TRUE(helpers.MountGameImage("D:\\A&B.iso"));
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_EQ(OnlyBox(), "This name cannot be given to a batch file safely:\rD:\\A&B.iso");
    EXPECT_FALSE(files.FileExists(MountFileName()));
}

TEST_F(MountCmd, OfAToolWithAnOddNameTheBoxTellsThatName) {
    Tool("C:\\d&t\\mount.cmd");
    form.CurrentLanguage = 1;
    EXPECT_TRUE(helpers.MountGameImage("D:\\a.iso"));
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_EQ(OnlyBox(),
              "Dieser Name kann einer Batch-Datei nicht sicher übergeben werden:\r"
              "C:\\d&t\\mount.cmd");
}

// An old file would mount the game before.
TEST_F(MountCmd, WhereNoFileCanBeWrittenBothCommandsRunByThemselves) {
    Tool("C:\\dt\\deamon.exe");
    files.AddFile(MountFileName(), "old\r\n");
    files.SetReadOnly(MountFileName());
    files.SetReadOnly(form.StartPfad.substr(0, form.StartPfad.size() - 1));
    EXPECT_TRUE(helpers.MountGameImage("D:\\a b.iso"));
    EXPECT_THAT(Commands(), ElementsAre("C:\\dt\\deamon.exe -unmount 0",
                                        "C:\\dt\\deamon.exe   -mount 0, \"D:\\a b.iso\""));
    for (const auto& start : host.starter.runs) {
        EXPECT_TRUE(start.request.wait);
        EXPECT_FALSE(start.request.startFile);
        EXPECT_EQ(start.request.style, WindowStyle::MinimizedNoFocus);
    }
}

TEST_F(MountCmd, WhatTheCodePageLacksIsSaidByNoFile) {
    Tool("C:\\dt\\deamon.exe");
    files.AddFile(MountFileName(), "old\r\n");
    host.starter.startFileBytes = [](std::string_view) { return std::nullopt; };
    EXPECT_TRUE(helpers.MountGameImage("D:\\\xE6\x97\xA5.iso"));
    EXPECT_THAT(Commands(), ElementsAre("C:\\dt\\deamon.exe -unmount 0",
                                        "C:\\dt\\deamon.exe   -mount 0, D:\\\xE6\x97\xA5.iso"));
}

TEST_F(MountShell, EveryWordIsQuoted) {
    Tool("/opt/mnt.sh");
    EXPECT_TRUE(helpers.MountGameImage("/r/it's.iso"));
    EXPECT_EQ(OnlyScript(),
              "'/opt/mnt.sh' '-unmount' '0'\n"
              "'/opt/mnt.sh' '-mount' '0,' '/r/it'\\''s.iso'\n");
    EXPECT_FALSE(files.FileExists(MountFileName()));
}

TEST_F(MountShell, FuseisoMountsInTheRuntimeDirectory) {
    Tool("/usr/bin/fuseiso");
    EXPECT_TRUE(helpers.MountGameImage("/r/a.iso"));
    EXPECT_EQ(OnlyScript(),
              "'fusermount' '-u' '/run/user/1000/kivu-cd0'\n"
              "'/usr/bin/fuseiso' '-p' '/r/a.iso' '/run/user/1000/kivu-cd0'\n");
}

TEST_F(MountShell, AFileThatEndsInABlankIsThatFile) {
    Tool("/opt/mnt.sh");
    files.AddFile("/r/a.iso ", "x");
    EXPECT_TRUE(helpers.MountGameImage("/r/a.iso "));
    EXPECT_THAT(OnlyScript(), ::testing::HasSubstr("'/r/a.iso '"));
}

TEST_F(MountShell, TheProgramsToolComesBeforeTheEmulators) {
    files.AddFile("/t/own", "x");
    files.AddFile("/t/all", "x");
    files.AddFile(form.IniPath, "[Settings]\r\nDeamonToolPath=/t/own\r\n");
    EXPECT_TRUE(helpers.MountGameImage("/r/a"));
    EXPECT_THAT(OnlyScript(), ::testing::StartsWith("'/t/own' "));
    host.starter.runs.clear();
    files.AddFile(form.BaseIniName, "[Settings]\r\nDeamonToolPath=\"/t/all\"\r\n");
    EXPECT_TRUE(helpers.MountGameImage("/r/a"));
    EXPECT_THAT(OnlyScript(), ::testing::StartsWith("'/t/all' "));
}

TEST_F(MountShell, ARelativeToolCountsFromTheProgramAndABareOneFromTheSearchPathToo) {
    files.AddFile("/k/tools/mnt", "x");
    files.AddFile(form.BaseIniName, "[Settings]\r\nDeamonToolPath=tools/mnt\r\n");
    EXPECT_TRUE(helpers.MountGameImage("/r/a"));
    EXPECT_THAT(OnlyScript(), ::testing::StartsWith("'/k/tools/mnt' "));
    host.starter.runs.clear();
    host.starter.path["cdemu"] = "/usr/bin/cdemu";
    files.AddFile(form.BaseIniName, "[Settings]\r\nDeamonToolPath=cdemu\r\n");
    EXPECT_TRUE(helpers.MountGameImage("/r/a"));
    EXPECT_THAT(OnlyScript(), ::testing::StartsWith("'/usr/bin/cdemu' 'unload' '0'\n"));
}

TEST_F(MountShell, WithoutAToolTheLaunchGoesOnBehindTheBox) {
    files.AddDirectory("/t/dir");
    for (const char* tool : {"", "/t/gone", "/t/dir", "\"\""}) {
        files.AddFile(form.BaseIniName,
                      std::string("[Settings]\r\nDeamonToolPath=") + tool + "\r\n");
        EXPECT_TRUE(helpers.MountGameImage("/r/a")) << tool;
        EXPECT_EQ(OnlyBox(), "Deamon Tool not found!") << tool;
        EXPECT_EQ(host.dialogs.shown[0].title, core::defaultTitle);
        host.dialogs.shown.clear();
    }
    EXPECT_THAT(host.starter.runs, IsEmpty());
}

TEST_F(MountShell, AToolThatMayNotBeRunIsNone) {
    Tool("/t/text");
    host.starter.notRunnable = {"/t/text"};
    EXPECT_TRUE(helpers.MountGameImage("/r/a"));
    EXPECT_EQ(OnlyBox(), "Deamon Tool not found!");
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_EQ(host.log.lines.back(), "not mounted, no such program: /t/text");
}

// A tool that hangs.
TEST_F(MountShell, TheUserGivesUpWhileItIsWaitedFor) {
    Tool("/t/hangs");
    host.starter.looksWhileWaiting = 1000;
    loading.givenUp = [this] { return host.events.count >= 3; };
    EXPECT_FALSE(helpers.MountGameImage("/r/a"));
    EXPECT_EQ(host.events.count, 3);
    EXPECT_FALSE(files.FileExists(MountFileName()));
}

TEST_F(MountShell, OnceGivenUpTheSecondCommandIsNotRun) {
    Tool("/t/hangs");
    files.SetReadOnly("/k/Config/A");
    host.starter.looksWhileWaiting = 1000;
    loading.givenUp = [] { return true; };
    EXPECT_FALSE(helpers.MountGameImage("/r/a"));
    EXPECT_THAT(OnlyRun().request.words, ElementsAre("/t/hangs", "-unmount", "0"));
}

// The tool has ended in the moment of the click, or its box was in front.
TEST_F(MountShell, AClickThatCameAtTheEndCountsToo) {
    loading.givenUp = [] { return true; };
    EXPECT_FALSE(helpers.MountGameImage("/r/a"));
    EXPECT_EQ(OnlyBox(), "Deamon Tool not found!");
    Tool("/t/quick");
    host.starter.looksWhileWaiting = 0;
    EXPECT_FALSE(helpers.MountGameImage("/r/a"));
}

TEST_F(MountShell, TheFileIsTakenAwayWhereItWasWritten) {
    Tool("/t/tool");
    const std::string written = MountFileName();
    host.events.onEvents = [this] { form.StartPfad = "/k/Config/B/"; };
    EXPECT_TRUE(helpers.MountGameImage("/r/a"));
    EXPECT_FALSE(files.FileExists(written));
}

TEST_F(MountShell, TheProgramsEndEndsTheWait) {
    Tool("/t/hangs");
    host.starter.looksWhileWaiting = 1000;
    host.events.onEvents = [this] { form.Ended = true; };
    // And nothing is launched.
    EXPECT_FALSE(helpers.MountGameImage("/r/a"));
    EXPECT_EQ(host.events.count, 1);
}

}  // namespace
}  // namespace kivu::launch
