#include "scenarios/pad.h"

namespace kivu::scenarios {
namespace {

// Starting, playing and ending a game with the pad.
class PadGame : public PadScenario {
 protected:
    std::size_t Runs() { return Do("runs")["value"].size(); }
    void WatchLooks(int ticks = 1) { Do("tick", "Form1.EmuActiveTimer", ticks); }
};

TEST_F(PadGame, StartStartsTheRowInFrontOnce) {
    Start();
    Do("click", "Form1.Label2");
    TapStick("y", 65535);
    Press({1});
    Poll();
    EXPECT_EQ(Runs(), 1U);
    EXPECT_EQ(Get("GameIsRunning"), true);
    EXPECT_EQ(Text("CURRENT_PROGRAM_STARTED"), "Bee (1991)(Maker)");
    EXPECT_TRUE(IsSilent());
    EXPECT_FALSE(Visible("JoystickIcon"));
    EXPECT_EQ(Call("JoystickCount"), 0);
}

TEST_F(PadGame, TheButtonThatStartedItStartsNoSecondOneAtItsEnd) {
    Start();
    Press({1});
    Poll();
    WatchLooks(3);
    EXPECT_EQ(Get("GameIsRunning"), false);
    EXPECT_EQ(Runs(), 1U);
    Poll(3);
    EXPECT_EQ(Runs(), 0U);
    Release();
    Poll();
    Press({1});
    Poll();
    EXPECT_EQ(Runs(), 1U);
}

TEST_F(PadGame, WhatIsPressedAfterItsEndCounts) {
    Start();
    Press({1});
    Poll();
    Release();
    WatchLooks(3);
    EXPECT_EQ(Runs(), 1U);
    Press({1});
    Poll();
    EXPECT_EQ(Runs(), 1U);
}

TEST_F(PadGame, ASilentClampDoesNotStartAnotherGame) {
    Start();
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 0);
    // The favourites, where nothing is marked, and the complete list go to their ends.
    Form().JoystickFocus = 4;
    Tap(4);
    Form().JoystickFocus = 2;
    Form().WIthoutDoubles.SetListIndexQuietly(0);
    ASSERT_EQ(Get("UAE_Short.ListIndex"), 2);
    Tap(1);
    EXPECT_TRUE(Text("CURRENT_PROGRAM_STARTED").starts_with("Ant"))
        << Text("CURRENT_PROGRAM_STARTED");
}

TEST_F(PadGame, NorDoesEnterAfterOne) {
    Start();
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 0);
    Form().JoystickFocus = 4;
    Tap(4);
    Form().WIthoutDoubles.SetListIndexQuietly(0);
    Do("key", "Form1.WIthoutDoubles", "Enter");
    EXPECT_TRUE(Text("CURRENT_PROGRAM_STARTED").starts_with("Ant"));
}

TEST_F(PadGame, EachListStartsItsOwnRow) {
    Start();
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 1);
    Tap(10);
    for (const int focus : {1, 3, 4}) {
        Do("set", "Form1.SearchDblsTxt.Text", "");
        Do("type", "Form1.SearchDblsTxt", "ant");
        Do("click", focus == 1 ? "Form1.Label1" : focus == 3 ? "Form1.Label3" : "Form1.Label4");
        (focus == 1   ? Form().FavoritenListe
         : focus == 3 ? Form().UAE_Short
                      : Form().SuchErgList)
            .SetListIndexQuietly(0);
        Form().JoystickFocus = focus;
        Tap(1);
        EXPECT_EQ(Runs(), 1U) << focus;
        EXPECT_TRUE(Text("CURRENT_PROGRAM_STARTED").starts_with(focus == 1 ? "Bee" : "Ant"))
            << focus;
        if (focus != 4) {
            EXPECT_EQ(Focus(), focus);
        }
        WatchLooks(3);
        Poll();
    }
}

TEST_F(PadGame, MissingFileIsToldAndThePadStaysSilent) {
    std::filesystem::remove(testing::PathOf(tree.Path("Roms/Alpha/Bee (1991)(Maker).adf")));
    Start();
    Do("click", "Form1.Label2");
    TapStick("y", 65535);
    Tap(1);
    EXPECT_EQ(Do("boxes")["value"][0]["title"], "Game - File not found!");
    EXPECT_EQ(Get("GameIsRunning"), true);
    EXPECT_EQ(Get("EmuActiveTimer.Enabled"), false);
    // Nothing runs for anybody else: keys, files that are handed over, the lists.
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    Push("y", 0);
    Poll(3);
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
    Do("key", "Form1", "Right");
    EXPECT_EQ(Get("ListMode"), "3");
    Do("summon", tree.Path("Roms/Alpha/Ant (1990)(Maker)(Disk 1 of 2).adf"));
    EXPECT_EQ(Runs(), 1U);
    WatchLooks(3);
    EXPECT_EQ(Get("GameIsRunning"), false);
    Do("click", "Form1.Label2");
    TapStick("x", 65535);
    EXPECT_EQ(Focus(), 3);
}

TEST_F(PadGame, NoRowInTheCompleteListIsToldOf) {
    Start();
    Do("click", "Form1.Label3");
    Form().UAE_Short.SetListIndexQuietly(-1);
    Form().JoystickFocus = 3;
    Tap(1);
    EXPECT_EQ(Do("boxes")["value"][0]["title"], "Game - File not found!");
    EXPECT_EQ(Get("GameIsRunning"), true);
    EXPECT_EQ(Runs(), 0U);
}

TEST_F(PadGame, StartAndAnotherButtonAtOnce) {
    Start();
    Do("click", "Form1.Label2");
    // The poll ends with the game that begins.
    Press({1, 2, 3, 11});
    Poll();
    EXPECT_EQ(Runs(), 1U);
    EXPECT_FALSE(session->ended);
    EXPECT_EQ(Get("WindowState"), 0);
}

TEST_F(PadGame, PadEventsInTheYieldsOfALaunch) {
    Start();
    Do("click", "Form1.Label2");
    for (int turn = 1; turn <= 8; ++turn) {
        Press({1});
        Do("meanwhile", "events", turn, Json::array({"tick", "Form1.JoystickTimer"}),
           Json::array({"device", "set", 0, Json{{"x", 0}, {"buttons", Json::array({11})}}}),
           Json::array({"call", "PollJoysticks"}));
        Do("tick", "Form1.JoystickTimer");
        EXPECT_EQ(Runs(), 1U) << turn;
        ASSERT_FALSE(session->ended) << turn;
        Release();
        WatchLooks(3);
        Poll();
        Form().JoystickFocus = 2;
        Do("click", "Form1.Label2");
    }
}

TEST_F(PadGame, PadPulledOutDuringALaunch) {
    Start();
    Press({1, 5});
    Do("meanwhile", "events", 2, Json::array({"device", "clear"}));
    Poll();
    EXPECT_EQ(Runs(), 1U);
    WatchLooks(3);
    EXPECT_EQ(Call("JoystickCount"), 0);
}

TEST_F(PadGame, ExitButtonOfTheTableKillsByItsRoutine) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("set", "Form1.ExitButtonAction", 1);
    Do("call", "JoystickButtonClick", 1);
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    const Json before = Do("dump", "Form1")["value"];
    Do("call", "JoystickButtonClick", 1);
    EXPECT_TRUE(Do("kills")["value"].empty());
    EXPECT_EQ(Do("dump", "Form1")["value"], before);
}

TEST_F(PadGame, SoDoesTheEventOfTheButton) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("set", "Form1.ExitButtonAction", 1);
    Do("call", "Joystick_Button", 1, 1);
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
}

TEST_F(PadGame, EmulatorForSettingUpIsPlayedAndTheListsRest) {
    Start();
    Do("call", "StartEmulator", "Alpha", false);
    EmulatorComesUp();
    WatchLooks();
    ASSERT_TRUE(Visible("AppRunningPicture"));
    Do("runs");
    Hold({{"x", 65535}, {"buttons", Json::array({1, 11})}});
    Poll(2);
    EXPECT_EQ(Runs(), 0U);
    EXPECT_FALSE(session->ended);
    EXPECT_FALSE(Visible("UAE_Short"));
}

}  // namespace
}  // namespace kivu::scenarios
