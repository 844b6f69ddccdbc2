// What the loading screen shows, how long it stands, and what clicks do.

#include "scenarios/loading_screen.h"

namespace kivu::scenarios {
namespace {

using LoadingScreenTest = LoadingScreen;

TEST_F(LoadingScreenTest, TellsWhatIsStarted) {
    Start();
    LaunchBee();
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Screen("Label1.Caption"), "Please wait...\r\rLoading:");
    EXPECT_EQ(Screen("TxtTitle.Caption"), "Bee (1991)(Maker)");
    EXPECT_EQ(Screen("Command1.Caption"), "Stop");
    EXPECT_EQ(Screen("Seconds"), 6);
    EXPECT_EQ(Screen("SecondsPassed"), 0);
    EXPECT_EQ(Screen("Timer1.Enabled"), true);
    EXPECT_EQ(Screen("Timer1.Interval"), 1000);
    EXPECT_EQ(Runs(), 1U);
    EXPECT_EQ(Get("GameIsRunning"), true);
}

TEST_F(LoadingScreenTest, SpeaksGerman) {
    options.language = "German";
    Start();
    LaunchBee();
    EXPECT_EQ(Screen("Label1.Caption"), "Bitte warten...\r\rLade:");
    EXPECT_EQ(Screen("Command1.Caption"), "Beenden");
}

TEST_F(LoadingScreenTest, StandsAboveAllAndTakesNoKeyboardWhateverThePinSays) {
    for (const char* pin : {"True", "False"}) {
        prepare = [pin](driver::Session& made) {
            made.Host().userStore.Set("AlwaysOnTop", "OnTop", pin);
        };
        Start();
        LaunchBee();
        EXPECT_EQ(Screen("AboveAll"), true);
        EXPECT_EQ(Screen("Topmost"), true);
        EXPECT_EQ(Screen("Activates"), false);
        EXPECT_EQ(Screen("Focus"), "");
        const Json windows = Do("windows")["value"];
        ASSERT_EQ(windows.size(), 2U);
        EXPECT_EQ(windows[1]["name"], "LoadingInfo");
        EXPECT_EQ(windows[1]["over"], "Form1");
        EXPECT_EQ(windows[1]["modal"], false);
    }
}

TEST_F(LoadingScreenTest, StandsForOneTick) {
    Splash("1");
    Start();
    LaunchBee();
    Tick();
    EXPECT_FALSE(IsUp());
    EXPECT_EQ(Get("GameIsRunning"), true);
}

TEST_F(LoadingScreenTest, StandsForItsTicksWhetherTheEmulatorHasComeUpOrNot) {
    Start();
    LaunchBee();
    Tick(2);
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    Tick(3);
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Screen("SecondsPassed"), 5);
    Tick();
    EXPECT_FALSE(IsUp());
    EXPECT_TRUE(Do("kills")["value"].empty());
}

TEST_F(LoadingScreenTest, WithoutSecondsThereIsNone) {
    for (const char* seconds : {"0", "-3"}) {
        Splash(seconds);
        Start();
        LaunchBee();
        EXPECT_FALSE(IsUp());
        EXPECT_EQ(Runs(), 1U);
    }
}

TEST_F(LoadingScreenTest, TitleIsCutOverAllItsLines) {
    Start();
    for (const auto& [started, shown] : std::vector<std::pair<std::string, std::string>>{
             {"Turrican (1990)(Rainbow)(Disk 1 of 3)\rTurrican (1990)(Disk 2",
              "Turrican (1990)(Rainbow)(Disk "},
             {"Ant\rBee\rCat", "Ant\rBee\rCat"},
             {"123456789012345678901234567\rabcd", "123456789012345678901234567\rab"},
             {"äöüäöüäöüäöüäöüäöüäöüäöüäöüäöüäöü", "äöüäöüäöüäöüäöüäöüäöüäöüäöüäöü"},
             {"", ""}}) {
        Do("set", "Form1.CURRENT_PROGRAM_STARTED", started);
        Do("call", "ShowLoadingInfo");
        EXPECT_EQ(Screen("TxtTitle.Caption"), shown);
        Do("close", "LoadingInfo");
    }
}

TEST_F(LoadingScreenTest, ClickAnywhereTakesItAwayAndNothingElse) {
    Start();
    for (const char* control : {"", ".Picture1", ".Label1", ".TxtTitle", ".GameImage"}) {
        LaunchBee();
        EmulatorComesUp();
        Do("tick", "Form1.EmuActiveTimer");
        Do("kills");
        Click(control);
        EXPECT_FALSE(IsUp()) << control;
        EXPECT_TRUE(Do("kills")["value"].empty());
        EXPECT_TRUE(Visible("AppRunningPicture"));
        EXPECT_EQ(Get("GameIsRunning"), true);
        EXPECT_TRUE(Refused("tick", "LoadingInfo.Timer1"));
        EmulatorGoes();
        Do("tick", "Form1.EmuActiveTimer", 4);
    }
}

TEST_F(LoadingScreenTest, ButtonEndsTheGameAndBringsTheListsBack) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    Do("state", "Form1", 1);
    Click(".Command1");
    EXPECT_FALSE(IsUp());
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    EXPECT_EQ(Get("WindowState"), 0);
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    Do("tick", "Form1.EmuActiveTimer", 4);
    EXPECT_EQ(Get("GameIsRunning"), false);
    LaunchBee();
    EXPECT_TRUE(IsUp());
}

// Its name is known, and nothing of the name runs yet.
TEST_F(LoadingScreenTest, ButtonBeforeTheEmulatorIsUpBringsTheListsBack) {
    Start();
    LaunchBee();
    Click(".Command1");
    EXPECT_FALSE(IsUp());
    EXPECT_TRUE(Do("kills")["value"].empty());
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    EXPECT_TRUE(Visible("AppRunningPicture"));
    EXPECT_FALSE(Visible("WIthoutDoubles"));
}

TEST_F(LoadingScreenTest, ButtonNeverHasTheFocus) {
    Start();
    LaunchBee();
    EXPECT_TRUE(Refused("focus", "LoadingInfo.Command1"));
    Later(1000);
    Do("key", "LoadingInfo", "Enter", "repeat");
    EXPECT_TRUE(IsUp());
    Do("key", "LoadingInfo", "Tab");
    EXPECT_EQ(Screen("Focus"), "");
    Do("key", "LoadingInfo", "Enter");
    EXPECT_FALSE(IsUp());
    EXPECT_TRUE(Do("kills")["value"].empty());
}

TEST_F(LoadingScreenTest, SecondLaunchWhileItStandsRestartsNothing) {
    Start();
    LaunchBee();
    Tick(2);
    Do("tick", "Form1.EmuActiveTimer", 4);  // the first one never came up
    Do("set", "Form1.UAE_Short.ListIndex", 0);
    Do("call", "LaunchBtn_Click");
    EXPECT_EQ(Runs(), 2U);
    EXPECT_EQ(Screen("SecondsPassed"), 2);
    EXPECT_EQ(Screen("TxtTitle.Caption"), "Bee (1991)(Maker)");
    Tick(4);
    EXPECT_FALSE(IsUp());
}

TEST_F(LoadingScreenTest, OneThatStandsComesForward) {
    Start();
    LaunchBee();
    Do("tick", "Form1.EmuActiveTimer", 4);
    session->Screen().Raise(Form());
    Do("call", "ShowLoadingInfo");
    EXPECT_EQ(Do("windows")["value"].back()["name"], "LoadingInfo");
}

TEST_F(LoadingScreenTest, EndOfTheEmulatorLeavesItItsTime) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer", 3);
    EXPECT_EQ(Get("GameIsRunning"), false);
    EXPECT_TRUE(IsUp());
    Click(".Command1");
    EXPECT_FALSE(IsUp());
    EXPECT_TRUE(Do("kills")["value"].empty());
    EXPECT_TRUE(Visible("WIthoutDoubles"));
}

TEST_F(LoadingScreenTest, WindowManagerClosesIt) {
    Start();
    LaunchBee();
    EXPECT_EQ(Do("close", "LoadingInfo")["value"], true);
    EXPECT_FALSE(IsUp());
    EXPECT_TRUE(Do("kills")["value"].empty());
}

TEST_F(LoadingScreenTest, ProgramEndsBehindIt) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("click", "Form1.ExitBtn");
    EXPECT_TRUE(session->ended);
}

// The program ends when the game has been started.
TEST_F(LoadingScreenTest, StartsAFileOfTheCommandLine) {
    options.commandLine = "\"" + tree.Path("Roms/Alpha/Bee (1991)(Maker).adf") + "\"";
    Start();
    EXPECT_TRUE(session->ended);
    EXPECT_EQ(Host().starter.runs.size(), 1U);
}

}  // namespace
}  // namespace kivu::scenarios
