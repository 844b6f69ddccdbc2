#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

class Watch : public LoadedScenario {
 protected:
    void Tick() { Do("tick", "Form1.EmuActiveTimer"); }
    void ExpectListView() {
        EXPECT_FALSE(Visible("AppRunningPicture"));
        EXPECT_EQ(Get("MyCaptionLabel.Caption"), Get("Caption"));
        EXPECT_TRUE(Visible("MyCaptionLabel"));
        EXPECT_FALSE(Visible("LoadingBtn"));
        EXPECT_TRUE(Visible("EmuListbox"));
        EXPECT_TRUE(Visible("WIthoutDoubles"));
        EXPECT_TRUE(Visible("Label2"));
        EXPECT_EQ(Get("GameIsRunning"), false);
        EXPECT_EQ(Get("EmuActiveTimer.Enabled"), false);
    }
};

TEST_F(Watch, RunningEmulatorIsShownAndItsEndBringsTheListBack) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Tick();
    EXPECT_TRUE(Visible("AppRunningPicture"));
    EXPECT_TRUE(Visible("MyCaptionLabel"));
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Running: alpha");
    EXPECT_FALSE(Visible("UAE_Short"));
    EXPECT_FALSE(Visible("WIthoutDoubles"));
    EXPECT_FALSE(Visible("Label1"));
    for (int i = 0; i < 5; ++i)
        Tick();
    EXPECT_EQ(Get("GameIsRunning"), true);
    EmulatorGoes();
    Tick();
    ExpectListView();
}

TEST_F(Watch, GermanWords) {
    options.language = "German";
    Start();
    LaunchBee();
    EmulatorComesUp();
    Tick();
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Gestartet: alpha");
}

TEST_F(Watch, EmulatorThatNeverComesUpEndsAtTheThirdTickAndNotBefore) {
    Start();
    LaunchBee();
    Tick();
    Tick();
    EXPECT_EQ(Get("GameIsRunning"), true);
    Tick();
    ExpectListView();
    EXPECT_TRUE(Refused("tick", "Form1.EmuActiveTimer"));
}

TEST_F(Watch, EmulatorThatEndsAtOnceEndsAtTheThirdTick) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Tick();
    EmulatorGoes();
    Tick();
    EXPECT_EQ(Get("GameIsRunning"), true);
    Tick();
    ExpectListView();
}

TEST_F(Watch, SecondCopyKeepsTheWatchRunning) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("process", "add", "ALPHA", 99);
    Do("tick", "Form1.EmuActiveTimer", 4);
    EmulatorGoes();
    Tick();
    EXPECT_EQ(Get("GameIsRunning"), true);
    Do("process", "remove", 99);
    Tick();
    ExpectListView();
}

TEST_F(Watch, UnreadableProcessListCountsAsEndedOnceTheGraceIsOver) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Host().processes.unreadable = true;
    Do("tick", "Form1.EmuActiveTimer", 3);
    ExpectListView();
}

TEST_F(Watch, RunningPictureKillsAndTheWatchDoesTheRest) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer", 4);
    Do("click", "Form1.AppRunningPicture");
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    EXPECT_FALSE(Visible("AppRunningPicture"));
    EXPECT_EQ(Get("AppRunningPicture.Enabled"), true);
    EXPECT_EQ(Get("LoadingBtn.Caption"), "Killing process..");
    EXPECT_EQ(Get("Current_LoadingSmallBtn.Caption"), "Killing process..");
    EXPECT_EQ(Get("JoystickFocus"), 2);
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "ResetScreenResolution"), "0");
    EXPECT_EQ(Get("GameIsRunning"), true);
    Tick();
    ExpectListView();
}

TEST_F(Watch, SecondKillFindsNothingAndOnlyBringsTheListBack) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Tick();
    Call("AppRunningPicture_Click");
    Call("AppRunningPicture_Click");
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
}

TEST_F(Watch, KillThatFailsKeepsTheWatchRunning) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Host().processes.immortal = true;
    Do("tick", "Form1.EmuActiveTimer", 4);
    Do("click", "Form1.AppRunningPicture");
    Tick();
    EXPECT_TRUE(Visible("AppRunningPicture"));
    EXPECT_EQ(Get("GameIsRunning"), true);
}

TEST_F(Watch, AltF4KillsTheRunningEmulatorAndNotTheLauncher) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Tick();
    EXPECT_FALSE(Do("key", "Form1", "Alt+F4").contains("ended"));
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    EXPECT_EQ(Do("beeps")["value"], 1);
}

TEST_F(Watch, BusySignKillsTheRunningEmulatorToo) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Tick();
    Do("click", "Form1.LoadingBtn");
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    EXPECT_EQ(Do("boxes")["value"], Json::array());
}

TEST_F(Watch, BusySignWithNothingRunningDoesNothing) {
    Start();
    Call("LoadingBtn_Click");
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    EXPECT_EQ(Do("kills")["value"], Json::array());
}

TEST_F(Watch, BusySignAsksAboutAnEmulatorOfAnEarlierStart) {
    Start();
    EmulatorComesUp();
    Call("LoadingBtn_Click");
    Json box = Do("boxes")["value"][0];
    EXPECT_EQ(box["title"], "Kill Task?");
    EXPECT_EQ(box["text"], "Kill Emulator - Program?\r" + tree.Path("alpha"));
    EXPECT_EQ(Do("kills")["value"], Json::array());
    Do("answer", "Yes");
    Call("LoadingBtn_Click");
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
}

TEST_F(Watch, NameThatOnlyContainsItIsTakenWhenNoneFits) {
    Start();
    Do("process", "add", "my-alpha-1", 7);
    Do("process", "add", "alphabet", 8);
    EXPECT_EQ(Call("FindProcessId", "C:\\x\\ALPHA"), 8);
    EXPECT_EQ(Call("IsProcessRunning", "alpha"), false);
    Do("process", "add", "Alpha", 9);
    EXPECT_EQ(Call("FindProcessId", "alpha"), 9);
    EXPECT_EQ(Call("FindProcessId", ""), 0);
    EXPECT_EQ(Call("FindProcessId", "none"), 0);
}

TEST_F(Watch, LauncherItselfIsNeverFound) {
    Start();
    Do("process", "add", "alpha-launcher", 5);
    Host().processes.entries[0].foreign = true;
    EXPECT_EQ(Call("FindProcessId", "alpha"), 0);
}

TEST_F(Watch, WholeLaunchAnswersToTheNameAndIsEndedTogether) {
    Start();
    LaunchBee();
    Do("process", "add", "wrapper", 50);
    Do("process", "add", "real-program", 51);
    for (auto& entry : Host().processes.entries)
        entry.ofLaunch = true;
    Do("tick", "Form1.EmuActiveTimer", 5);
    EXPECT_TRUE(Visible("AppRunningPicture"));
    Do("click", "Form1.AppRunningPicture");
    EXPECT_TRUE(Host().processes.entries.empty());
    Tick();
    ExpectListView();
}

TEST_F(Watch, SetupStartHasNoGraceAndLooksBeforeTheTimerRuns) {
    Start();
    Host().starter.onRun = [&](const platform::StartRequest&) {
        Host().processes.Add("alpha", 4711);
    };
    Call("StartEmulator", "Alpha", false);
    EXPECT_TRUE(Visible("AppRunningPicture"));
    EXPECT_EQ(Get("GameIsRunning"), false);
    EmulatorGoes();
    Tick();
    ExpectListView();
}

TEST_F(Watch, EmulatorChangeWithNothingStartedLooksForNothing) {
    Start();
    EXPECT_TRUE(Visible("MyCaptionLabel"));
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_TRUE(Visible("MyCaptionLabel"));
}

TEST_F(Watch, TickDuringATickDoesNothing) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Host().events.onEvents = [&] { Call("EmuActiveTimer_Timer"); };
    Tick();
    EXPECT_EQ(Get("StartGraceTicks"), 2);
}

TEST_F(Watch, BusySignSaysTheSameInItsSmallForm) {
    Start();
    Do("set", "Form1.LoadingBtn.Caption", "Any text");
    EXPECT_EQ(Get("Current_LoadingSmallBtn.Caption"), "Any text");
}

TEST_F(Watch, NextGameCanBeStartedAfterTheFirst) {
    Start();
    for (int round = 0; round < 3; ++round) {
        LaunchBee();
        EmulatorComesUp();
        Do("tick", "Form1.EmuActiveTimer", 4);
        EmulatorGoes();
        Tick();
        ExpectListView();
    }
    EXPECT_EQ(Do("runs")["value"].size(), 3U);
}

}  // namespace
}  // namespace kivu::scenarios
