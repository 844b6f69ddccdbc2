#include "scenarios/pad.h"

namespace kivu::scenarios {
namespace {

// What buttons and sticks do in the window.
class PadButtons : public PadScenario {};

TEST_F(PadButtons, FirstStartStoresTheTableAndTheOptions) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
    Start();
    const std::string profile = "Config/Kivu.ini";
    for (int action = 0; action < 12; ++action) {
        EXPECT_EQ(tree.Stored(profile, "Button" + std::to_string(action + 1)),
                  std::to_string(action));
    }
    EXPECT_EQ(tree.Stored(profile, "UseJoystick"), "1");
    EXPECT_EQ(tree.Stored(profile, "UseJoystickExitbutton"), "0");
    EXPECT_TRUE(Visible("JoystickIcon"));
    EXPECT_EQ(Get("JoystickTimer.Interval"), 140);
    EXPECT_EQ(Call("JoystickCount"), 1);
    EXPECT_FALSE(Visible("Current_LoadingSmallBtn"));
}

TEST_F(PadButtons, AHeldStickTurnsTheTabsRoundAndRound) {
    Start();
    Do("click", "Form1.Label2");
    Push("x", 65535);
    for (const int focus : {3, 4, 1, 2, 3}) {
        Poll();
        EXPECT_EQ(Focus(), focus);
    }
    Push("x", 0);
    for (const int focus : {2, 1, 4, 3, 2}) {
        Poll();
        EXPECT_EQ(Focus(), focus);
    }
    EXPECT_EQ(Get("ListMode"), "2");
    EXPECT_TRUE(Visible("WIthoutDoubles"));
}

TEST_F(PadButtons, BothSticksTurnOneTabEach) {
    Start();
    Do("click", "Form1.Label2");
    Hold({{"x", 65535}, {"rz", 65535}});
    Poll();
    EXPECT_EQ(Focus(), 4);
    Do("click", "Form1.Label2");
    Hold({{"x", 65535}, {"rz", 0}});
    Poll();
    EXPECT_EQ(Focus(), 2);
}

TEST_F(PadButtons, EachButtonOfTheDefaultTableHasItsAction) {
    Start();
    Do("click", "Form1.Label2");
    Fill(Form().UAE_Short, 300, 50);
    Fill(Form().FavoritenListe, 300, 150);
    Fill(Form().WIthoutDoubles, 300, 150);
    std::vector<int> rows;
    for (const int button : {4, 5, 6, 7, 8, 9}) {
        Tap(button);
        rows.push_back(Form().WIthoutDoubles.ListIndex());
        Fill(Form().UAE_Short, 300, 50);
    }
    EXPECT_EQ(rows, (std::vector<int>{160, 150, 299, 199, 299, 0}));
    Tap(3);
    EXPECT_EQ(Get("WindowState"), 2);
    Tap(3);
    EXPECT_EQ(Get("WindowState"), 0);
    Do("state", "Form1", 1);
    Tap(3);
    EXPECT_EQ(Get("WindowState"), 2);
}

TEST_F(PadButtons, SelectClicksTheRowInFront) {
    Start();
    Do("click", "Form1.Label2");
    Form().WIthoutDoubles.SetListIndexQuietly(1);
    Form().UAE_Short.SetListIndexQuietly(0);
    Tap(0);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 2);
    Do("type", "Form1.SearchDblsTxt", "ant");
    Form().JoystickFocus = 4;
    Form().SuchErgList.SetListIndexQuietly(0);
    Tap(0);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 0);
    EXPECT_FALSE(Form().GameIsRunning);
}

TEST_F(PadButtons, AddsTheGameToTheFavourites) {
    Start();
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 1);
    Tap(10);
    EXPECT_EQ(Get("FavoritenListe.List"), Json::array({"Bee (1991)(Maker)"}));
    // Where the button is not to be seen nothing is added.
    Do("click", "Form1.Label1");
    Do("select", "Form1.FavoritenListe", 0);
    ASSERT_FALSE(Visible("AddToFavorit"));
    const std::string stored = tree.Read("Config/Alpha/Favoriten.ini");
    Tap(10);
    EXPECT_EQ(tree.Read("Config/Alpha/Favoriten.ini"), stored);
}

TEST_F(PadButtons, ButtonsOfNoActionQuit) {
    for (const int button : {11, 14, 17}) {
        Start();
        Press({button});
        EXPECT_EQ(Do("tick", "Form1.JoystickTimer").value("ended", false), true) << button;
    }
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowState"), "0");
}

TEST_F(PadButtons, TheFirstActionOfAButtonWins) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"Button1", "1"}, {"Button2", "1"}});
    Start();
    Press({0});
    EXPECT_EQ(Do("tick", "Form1.JoystickTimer").value("ended", false), true);
}

TEST_F(PadButtons, OddValuesInTheTable) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"},
                              {"Button1", "-2"},
                              {"Button3", "abc"},
                              {"Button4", "99999"},
                              {"Button6", " 3 "}});
    Start();
    EXPECT_EQ(Get("JoystickButtons"), Json::array({-2, 1, 0, 0, 4, 3, 6, 7, 8, 9, 10, 11, 12}));
    Do("click", "Form1.Label2");
    Fill(Form().WIthoutDoubles, 250, 100);
    Fill(Form().UAE_Short, 250, 100);
    Fill(Form().FavoritenListe, 250, 100);
    Tap(2);
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 110);
}

TEST_F(PadButtons, NoMoreThanEighteenAndOneBeyondTheCount) {
    prepare = [this](driver::Session&) {
        Do("device", "add", "Many", 20);
        Do("device", "add", "Few", 4);
    };
    Start();
    Do("click", "Form1.Label2");
    Fill(Form().WIthoutDoubles, 250, 100);
    Fill(Form().UAE_Short, 250, 100);
    Fill(Form().FavoritenListe, 250, 100);
    Press({18, 19});
    Poll();
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 100);
    Release();
    // The second one's.
    Do("device", "set", 1, Json{{"buttons", Json::array({4})}});
    Poll();
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 110);
    Do("device", "set", 1, Json{{"buttons", Json::array({5})}});
    Poll();
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 110);
}

TEST_F(PadButtons, RestIsTakenAtTheStart) {
    prepare = [this](driver::Session&) {
        Do("device", "add", "Pad", 18);
        Do("device", "set", 0, Json{{"x", 65535}});
    };
    Start();
    Do("click", "Form1.Label2");
    Poll();
    EXPECT_EQ(Focus(), 2);
    Push("x", 32768);
    Poll();
    EXPECT_EQ(Focus(), 1);
}

TEST_F(PadButtons, UnpluggedItMovesNothingAndCounts) {
    Start();
    Do("click", "Form1.Label2");
    Push("x", 65535);
    Do("device", "clear");
    Poll(3);
    EXPECT_EQ(Focus(), 2);
    EXPECT_EQ(Call("JoystickCount"), 1);
}

TEST_F(PadButtons, FocusOutOfItsNumbers) {
    Start();
    for (const int focus : {-1, 0, 6}) {
        Do("set", "Form1.JoystickFocus", focus);
        for (const char* axis : {"x", "y"}) {
            TapStick(axis, 65535);
            TapStick(axis, 0);
        }
        Tap(0);
        EXPECT_EQ(Focus(), focus);
    }
    Do("set", "Form1.JoystickFocus", 7);
    TapStick("x", 65535);
    EXPECT_EQ(Focus(), 2);
}

TEST_F(PadButtons, StartAndAddWithTheFocusOutOfItsNumbers) {
    for (const int focus : {-1, 0, 6, 7}) {
        std::filesystem::remove(testing::PathOf(tree.Path("Config/Alpha/Favoriten.ini")));
        Start();
        Do("click", "Form1.Label2");
        Do("select", "Form1.WIthoutDoubles", 1);
        Form().JoystickFocus = focus;
        Tap(10);
        EXPECT_EQ(Get("FavoritenListe.List"), Json::array({"Bee (1991)(Maker)"})) << focus;
        Form().JoystickFocus = focus;
        Tap(1);
        EXPECT_TRUE(Do("runs")["value"].empty()) << focus;
        EXPECT_EQ(Get("GameIsRunning"), true) << focus;
    }
}

TEST_F(PadButtons, NothingLoadedAndNoEmulatorAtAll) {
    tree.WriteProgramProfile({});
    Start();
    ASSERT_EQ(Get("CurrentEmuIndex"), -1);
    for (int button = 0; button < 11; ++button) {
        Tap(button);
        Form().GameIsRunning = false;
    }
    for (const char* axis : {"x", "y", "rz"}) {
        TapStick(axis, 65535);
        TapStick(axis, 0);
    }
    EXPECT_TRUE(Do("runs")["value"].empty());
    EXPECT_FALSE(Form().Busy);
}

TEST_F(PadButtons, BusyItDoesNothing) {
    Start();
    Do("click", "Form1.Label2");
    Form().Busy = true;
    Hold({{"x", 65535}, {"buttons", Json::array({1, 11})}});
    Poll(3);
    Do("call", "JoystickButtonClick", 12);
    EXPECT_EQ(Focus(), 2);
    EXPECT_FALSE(Form().GameIsRunning);
    EXPECT_FALSE(session->ended);
}

TEST_F(PadButtons, PadAtRestLeavesTheSearchBoxItsFocus) {
    Start();
    Do("type", "Form1.SearchDblsTxt", "an");
    Poll(5);
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
    EXPECT_EQ(Get("SearchDblsTxt.Enabled"), true);
}

TEST_F(PadButtons, QuitEndsThePollWithIt) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"Button1", "1"}});
    Start();
    Press({0, 2});
    EXPECT_EQ(Do("tick", "Form1.JoystickTimer").value("ended", false), true);
    EXPECT_TRUE(Do("runs")["value"].empty());
}

}  // namespace
}  // namespace kivu::scenarios
