#include "core/shut_down.h"

#include <gmock/gmock.h>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_ports.h"

namespace kivu::core {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct DrivesAtHome : kivu::testing::QuietLayout {
    bool DrivesAreHome() const override { return true; }
};

struct ShutDownTest : ::testing::Test {
    ShutDownTest() {
        form.BaseIniName = "/k/Config/Kivu.ini";
        form.IniPath = "/k/Config/Alpha/Kivu.ini";
        files.AddDirectory("/k/Config/Alpha");
        form.Move(150, 300, 15000, 12000);
        form.SettingsSubPicture.Move(1200, 3400, 4560, 480);
        shutDown.hooks.EndProcess = [this] { ++ends; };
        shutDown.ports.layout = layout;
    }

    const std::string panel = "DrvWindowX=1200\r\nDrvWindowY=3400\r\nDrvWindowDocked=1\r\n";
    const std::string window =
        "WindowState=0\r\nWindowX=15000\r\nWindowY=12000\r\nWindowTop=300\r\nWindowLeft=150\r\n";

    kivu::testing::MemoryFileSystem files;
    Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    DrivesAtHome layout;
    ShutDown shutDown{form, ini};
    int ends = 0;
};

TEST_F(ShutDownTest, WritesEachProfileOnce) {
    files.AddFile(form.BaseIniName, "; mine\r\n[Settings]\r\nWindowX=1\r\nFontsize=16\r\n");
    shutDown.ExitBtn_Click();
    EXPECT_THAT(files.changes, ElementsAre(form.IniPath, form.BaseIniName));
    EXPECT_EQ(files.BytesOf(form.IniPath), "[Settings]\r\n" + panel);
    EXPECT_EQ(files.BytesOf(form.BaseIniName),
              "; mine\r\n[Settings]\r\nWindowX=15000\r\nFontsize=16\r\nWindowState=0\r\n"
              "WindowY=12000\r\nWindowTop=300\r\nWindowLeft=150\r\n");
    EXPECT_TRUE(form.Ended);
    EXPECT_EQ(ends, 1);
}

TEST_F(ShutDownTest, WritesNothingThatStandsThereAlready) {
    files.AddFile(form.IniPath, "[Settings]\r\n" + panel);
    files.AddFile(form.BaseIniName, "[Settings]\r\n" + window);
    shutDown.ExitBtn_Click();
    EXPECT_THAT(files.changes, IsEmpty());
    EXPECT_EQ(ends, 1);
}

TEST_F(ShutDownTest, WithNoEmulatorOneProfileTakesAll) {
    form.IniPath = form.BaseIniName;
    shutDown.ExitBtn_Click();
    EXPECT_EQ(files.BytesOf(form.BaseIniName), "[Settings]\r\n" + panel + window);
}

TEST_F(ShutDownTest, EndsThoughNothingCanBeWritten) {
    files.AddDirectory(form.IniPath);
    files.AddDirectory(form.BaseIniName);
    shutDown.ExitBtn_Click();
    EXPECT_THAT(files.changes, IsEmpty());
    EXPECT_EQ(ends, 1);
}

TEST_F(ShutDownTest, EndOfAnotherKindWritesWhatHasGatheredAndNothingElse) {
    files.AddFile(form.BaseIniName, "[Settings]\r\n");
    const profile::Ini::GatheredWriteBacks gathered(ini);
    (void)ini.ReadIniValue("Settings", "Fontsize", form.BaseIniName, "16", true);
    EXPECT_THAT(files.changes, IsEmpty());
    shutDown.EndProgram();
    EXPECT_EQ(files.BytesOf(form.BaseIniName), "[Settings]\r\nFontsize=16\r\n");
    EXPECT_TRUE(form.Ended);
    EXPECT_EQ(ends, 1);
}

TEST_F(ShutDownTest, FromOutsideStoresTheSame) {
    form.WindowReady = true;
    shutDown.hooks.DrivesAreOf = [&](const std::string& profile) {
        return profile == form.IniPath;
    };
    shutDown.EndFromOutside();
    EXPECT_EQ(files.BytesOf(form.IniPath), "[Settings]\r\n" + panel);
    EXPECT_EQ(files.BytesOf(form.BaseIniName), "[Settings]\r\n" + window);
    EXPECT_TRUE(form.Ended);
    EXPECT_EQ(ends, 1);
    shutDown.EndFromOutside();
    EXPECT_EQ(ends, 1);
}

TEST_F(ShutDownTest, FromOutsideStoresNothingOfAWindowThatIsNotReady) {
    shutDown.hooks.DrivesAreOf = [](const std::string&) { return true; };
    shutDown.EndFromOutside();
    EXPECT_THAT(files.changes, IsEmpty());
    EXPECT_EQ(ends, 1);
}

TEST_F(ShutDownTest, FromOutsideLeavesTheDrivesOfAnotherProfile) {
    form.WindowReady = true;
    shutDown.hooks.DrivesAreOf = [](const std::string&) { return false; };
    shutDown.EndFromOutside();
    EXPECT_THAT(files.changes, ElementsAre(form.BaseIniName));
}

TEST_F(ShutDownTest, FromOutsideAMinimisedWindowLeavesItsState) {
    form.WindowReady = true;
    files.AddFile(form.BaseIniName, "[Settings]\r\nWindowState=2\r\n");
    form.SetState(forms::WindowState::minimized);
    shutDown.EndFromOutside();
    EXPECT_THAT(files.changes, IsEmpty());
    shutDown.ExitBtn_Click();
    EXPECT_EQ(files.BytesOf(form.BaseIniName), "[Settings]\r\nWindowState=1\r\n");
}

TEST_F(ShutDownTest, EndOfTheSessionMayBeCalledOff) {
    form.WindowReady = true;
    shutDown.StoreForSession();
    EXPECT_EQ(files.BytesOf(form.BaseIniName), "[Settings]\r\n" + window);
    EXPECT_FALSE(form.Ended);
    EXPECT_EQ(ends, 0);
}

}  // namespace
}  // namespace kivu::core
