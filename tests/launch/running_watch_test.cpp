#include "launch/running_watch.h"

#include <gtest/gtest.h>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"

namespace kivu::launch {
namespace {

struct RunningWatchTest : ::testing::Test {
    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    core::BusyState busy{form, host.events};
    support::AlwaysOnTop alwaysOnTop{
        form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove}, host.userStore};
    kivu::testing::QuietChoice choice;
    kivu::testing::QuietFront front;
    Prozess prozess{host.processes};
    RunningWatch watch{form,        ini,          prozess,  busy,
                       host.events, host.dialogs, host.log, {choice, front, alwaysOnTop}};
};

// The lists that the end of the game would bring back are being filled.
TEST_F(RunningWatchTest, TickRestsWhileASwitchOrARescanIsUnderWay) {
    form.CurrentRunninApplication = "game.exe";
    form.GameIsRunning = true;
    form.StartGraceTicks = 2;
    form.EmuActiveTimer.SetEnabled(true);
    form.Busy = true;
    for (int second = 0; second < 5; ++second)
        watch.Tick();
    EXPECT_TRUE(form.GameIsRunning);
    EXPECT_EQ(form.StartGraceTicks, 2);
    form.Busy = false;
    watch.Tick();
    EXPECT_EQ(form.StartGraceTicks, 1);
    watch.Tick();
    EXPECT_FALSE(form.GameIsRunning);
    EXPECT_FALSE(form.EmuActiveTimer.Enabled());
}

// A program that was only tried out is ended without a watch.
TEST_F(RunningWatchTest, EndOnRequestBringsTheWindowBackWhereNothingIsWatched) {
    form.CurrentRunninApplication = "winuae.exe";
    for (const bool shown : {false, true}) {
        host.processes.Add("winuae.exe", 7);
        busy.HideAll(false);
        form.AppRunningPicture.SetVisible(shown);
        watch.AppRunningPicture_Click();
        EXPECT_TRUE(form.ListsVisible);
        EXPECT_TRUE(form.SettingsBtn.Visible());
        EXPECT_FALSE(form.LoadingBtn.Visible());
        EXPECT_FALSE(form.AppRunningPicture.Visible());
    }
}

// The loading screen has outlasted its game, and its button is clicked in the middle of a rescan.
TEST_F(RunningWatchTest, EndOnRequestLeavesTheWindowToWhatIsUnderWay) {
    form.CurrentRunninApplication = "game.exe";
    for (const bool isUp : {false, true}) {
        if (isUp) host.processes.Add("game.exe", 7);
        form.Busy = true;
        busy.HideAll(false);
        watch.AppRunningPicture_Click();
        EXPECT_EQ(host.processes.kills.size(), isUp ? 1U : 0U);
        EXPECT_FALSE(form.ListsVisible);
        EXPECT_FALSE(form.SettingsBtn.Visible());
        EXPECT_TRUE(form.LoadingBtn.Visible());
    }
    form.Busy = false;
    watch.AppRunningPicture_Click();
    EXPECT_TRUE(form.ListsVisible);
}

// A launch that is under way is told, once it is its own game that is ended.
TEST_F(RunningWatchTest, EndOnRequestStopsTheLaunchOfThatGameAlone) {
    form.CurrentRunninApplication = "game.exe";
    form.GameIsRunning = true;
    watch.AppRunningPicture_Click();
    EXPECT_FALSE(form.StartGivenUp);
    form.StartingGame = "/next.adf";
    form.StartCanBeGivenUp = true;
    host.processes.Add("game.exe", 7);
    watch.KillRunning();
    watch.AppRunningPicture_Click();
    EXPECT_FALSE(form.StartGivenUp);
    form.StartCanBeGivenUp = false;
    watch.AppRunningPicture_Click();
    EXPECT_TRUE(form.StartGivenUp);
}

// The change itself looks, while it is under way.
TEST_F(RunningWatchTest, ChangeOfEmulatorLooksAtOnce) {
    form.Busy = true;
    host.processes.Add("game.exe", 7);
    watch.WatchOnce();
    EXPECT_FALSE(form.AppRunningPicture.Visible());
    form.CurrentRunninApplication = "game.exe";
    watch.WatchOnce();
    EXPECT_TRUE(form.AppRunningPicture.Visible());
}

}  // namespace
}  // namespace kivu::launch
