// The loading screen in the middle of a launch: giving that up, keys, boxes and windows in front.

#include "scenarios/loading_screen.h"
#include "wiring/routines.h"

namespace kivu::scenarios {
namespace {

class LoadingLaunches : public LoadingScreen {
 protected:
    // Nothing has been started, and the window is as it was.
    void ExpectGivenUp(std::size_t runsBefore = 0) {
        EXPECT_EQ(Host().starter.runs.size(), runsBefore);
        EXPECT_TRUE(Do("kills")["value"].empty());
        EXPECT_FALSE(IsUp());
        EXPECT_FALSE(Visible("LoadingBtn"));
        EXPECT_TRUE(Visible("UAE_Short"));
        EXPECT_EQ(Text("Caption"), Text("MyCaptionLabel.Caption"));
        EXPECT_NE(Text("Caption"), "Spiel Läuft");
        EXPECT_EQ(Get("Busy"), false);
        EXPECT_EQ(Boxes(), 0U);
    }
    void Key(const char* key) { Do("key", "Form1", key); }
};

TEST_F(LoadingLaunches, ButtonBeforeTheStartGivesTheLaunchUp) {
    SplashWithMount("6");
    Start();
    DuringLaunch([this] {
        EXPECT_EQ(Call("GivenUp"), false);
        Click(".Command1");
        EXPECT_EQ(Call("GivenUp"), true);
    });
    LaunchBee();
    ExpectGivenUp();
    EXPECT_EQ(Call("GivenUp"), false);
    EXPECT_EQ(Get("GameIsRunning"), false);
    EXPECT_TRUE(Refused("tick", "Form1.EmuActiveTimer"));
    // The next one is a new one.
    LaunchBee();
    EXPECT_EQ(Call("GivenUp"), false);
    EXPECT_EQ(Runs(), 1U);
    EXPECT_TRUE(IsUp());
}

// The name that is known is that of the last game.
TEST_F(LoadingLaunches, ButtonBeforeTheStartLeavesTheLastGamesEmulatorAlone) {
    SplashWithMount("6");
    Start();
    LaunchBee();
    Boxes();  // there is no tool to mount with
    Click("");
    Do("tick", "Form1.EmuActiveTimer", 4);
    EmulatorComesUp();
    DuringLaunch([this] { Click(".Command1"); });
    LaunchBee();
    ExpectGivenUp(1);
    EXPECT_EQ(Host().processes.entries.size(), 1U);
}

TEST_F(LoadingLaunches, EscapeBeforeTheStartGivesTheLaunchUpWithAndWithoutAScreen) {
    for (const char* seconds : {"6", "0"}) {
        SplashWithMount(seconds);
        Start();
        DuringLaunch([this] { Key("Escape"); });
        LaunchBee();
        ExpectGivenUp();
    }
}

// While it looks for the game, which may take long in a long list.
TEST_F(LoadingLaunches, EscapeBeforeTheScreenComesGivesTheLaunchUp) {
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    Do("meanwhile", "events", 1, Json::array({"key", "Form1", "Escape"}));
    const Json answer = Do("dblclick", "Form1.UAE_Short", 2);
    ASSERT_EQ(answer["meanwhile"].size(), 1U);
    ExpectGivenUp();
}

TEST_F(LoadingLaunches, ClickBeforeTheStartSkipsTheScreenAloneAndItComesAnew) {
    SplashWithMount("6");
    Start();
    DuringLaunch([this] {
        Tick(2);
        Click(".Picture1");
        EXPECT_FALSE(IsUp());
    });
    LaunchBee();
    EXPECT_EQ(Runs(), 1U);
    ASSERT_TRUE(IsUp());
    EXPECT_EQ(Screen("SecondsPassed"), 0);
}

TEST_F(LoadingLaunches, TicksBeforeTheStartCountOn) {
    SplashWithMount("6");
    Start();
    DuringLaunch([this] { Tick(2); });
    LaunchBee();
    EXPECT_EQ(Screen("SecondsPassed"), 2);
}

TEST_F(LoadingLaunches, EndedWhileItStandsTheProgramStartsNothing) {
    SplashWithMount("6");
    Start();
    DuringLaunch([this] {
        interpreter->Execute(Json::array({"click", "Form1.ExitBtn"}));
        if (session->ended) throw driver::ProgramEnded{};
    });
    interpreter->Execute(
        Json::array({"call", "StartGame", tree.Path("Roms/Alpha/Bee (1991)(Maker).adf")}));
    EXPECT_TRUE(session->ended);
    EXPECT_TRUE(Host().starter.runs.empty());
}

TEST_F(LoadingLaunches, KeysSkipItAfterHalfASecond) {
    Start();
    for (const char* key : {"Escape", "Enter", "Space"}) {
        LaunchBee();
        EmulatorComesUp();
        Do("tick", "Form1.EmuActiveTimer");
        Key(key);
        Later(499);
        Key(key);
        Do("key", "Form1", key, "repeat");
        EXPECT_TRUE(IsUp()) << key;
        Later(1);
        Do("key", "Form1", key, "repeat");
        EXPECT_TRUE(IsUp()) << key;
        Key("a");
        Key("Tab");
        Key("Shift+Enter");
        EXPECT_TRUE(IsUp()) << key;
        Key(key);
        EXPECT_FALSE(IsUp()) << key;
        EXPECT_EQ(Boxes(), 0U) << key;
        EXPECT_EQ(Runs(), 1U);
        EXPECT_TRUE(Do("kills")["value"].empty());
        EmulatorGoes();
        Do("tick", "Form1.EmuActiveTimer", 4);
    }
}

// It would ask to quit, or start the game of the row.
TEST_F(LoadingLaunches, KeyThatSkipsItMeansNothingElseWhileItIsHeld) {
    Start();
    for (const char* key : {"Escape", "Enter", "Space"}) {
        LaunchBee();
        Do("tick", "Form1.EmuActiveTimer", 4);
        EXPECT_EQ(Runs(), 1U);
        Later(3000);
        Do("select", "Form1.WIthoutDoubles", 1);
        Do("key", "Form1.WIthoutDoubles", key);
        EXPECT_FALSE(IsUp()) << key;
        for (int repeats = 0; repeats < 3; ++repeats)
            Do("key", "Form1.WIthoutDoubles", key, "repeat");
        EXPECT_EQ(Runs(), 0U) << key;
        EXPECT_EQ(Boxes(), 0U) << key;
    }
    Do("answer", "Cancel");
    Key("Escape");
    EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LoadingLaunches, KeyThatGivesTheLaunchUpMeansNothingElseWhileItIsHeld) {
    SplashWithMount("6");
    Start();
    DuringLaunch([this] { Key("Escape"); });
    LaunchBee();
    Do("key", "Form1", "Escape", "repeat");
    ExpectGivenUp();
    EXPECT_FALSE(session->ended);
}

TEST_F(LoadingLaunches, WithoutItEscapeAsksAsBefore) {
    Start();
    LaunchBee();
    Do("tick", "LoadingInfo.Timer1", 6);
    Do("answer", "Cancel");
    Key("Escape");
    EXPECT_EQ(Boxes(), 1U);
}

// A game that has ended at once: Enter in the list skips the screen, and the next one starts.
TEST_F(LoadingLaunches, EnterOverTheListSkipsItFirst) {
    Start();
    LaunchBee();
    Do("tick", "Form1.EmuActiveTimer", 4);
    EXPECT_EQ(Runs(), 1U);
    Later(3000);
    Do("key", "Form1.WIthoutDoubles", "Enter");
    EXPECT_FALSE(IsUp());
    EXPECT_EQ(Runs(), 0U);
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("key", "Form1.WIthoutDoubles", "Enter");
    EXPECT_EQ(Runs(), 1U);
}

TEST_F(LoadingLaunches, BoxesLieAboveItAndItCountsOn) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("meanwhile", "box", 1, Json::array({"get", "LoadingInfo.AboveAll"}),
       Json::array({"get", "LoadingInfo.Topmost"}), Json::array({"tick", "LoadingInfo.Timer1", 3}));
    const Json answer = Do("click", "Form1.LoadingBtn");
    ASSERT_EQ(Boxes(), 1U);
    EXPECT_EQ(answer["meanwhile"][0]["value"], false);
    EXPECT_EQ(answer["meanwhile"][1]["value"], false);
    EXPECT_EQ(Screen("AboveAll"), true);
    EXPECT_EQ(Screen("Topmost"), true);
    EXPECT_EQ(Screen("SecondsPassed"), 3);
    // Gone behind a box.
    Do("meanwhile", "box", 1, Json::array({"tick", "LoadingInfo.Timer1", 3}));
    Do("click", "Form1.LoadingBtn");
    EXPECT_FALSE(IsUp());
}

// It stands for its time, too, behind a window that waits, where no click reaches it.
TEST_F(LoadingLaunches, ModalWindowsLieAboveItAndItCountsOn) {
    Start();
    LaunchBee();
    session->Screen().onModal = [this](forms::Form&, const std::function<bool()>&) {
        EXPECT_EQ(Screen("AboveAll"), false);
        EXPECT_TRUE(Refused("click", "LoadingInfo.Command1"));
        Tick(6);
        EXPECT_FALSE(IsUp());
    };
    forms::Form asking("Asking", Form().GetToolkit());
    session->Screen().ShowModal(asking, &Form());
    EXPECT_FALSE(IsUp());
}

TEST_F(LoadingLaunches, ShownOverAModalWindowItIsReached) {
    Start();
    forms::Form asking("Asking", Form().GetToolkit());
    bool asked = false;
    session->Screen().onModal = [&](forms::Form&, const std::function<bool()>&) {
        asked = true;
        session->Routines().windowsBeside.loading.ShowLoadingInfo(&asking);
        EXPECT_EQ(Screen("AboveAll"), true);
        Do("click", "LoadingInfo.Picture1");
        EXPECT_FALSE(IsUp());
        session->Routines().windowsBeside.loading.ShowLoadingInfo(&asking);
    };
    session->Screen().ShowModal(asking, &Form());
    EXPECT_TRUE(asked);
    // That one has gone, and this one is none of its questions.
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Screen("AboveAll"), true);
    asking.Unload();
    Do("click", "LoadingInfo.Picture1");
    EXPECT_FALSE(IsUp());
}

// Its name is known while the start script waits.
TEST_F(LoadingLaunches, ButtonDuringTheScriptsWaitEndsTheGame) {
    Splash("6", {{"RunVBS_Script", "1"}});
    Start();
    bool done = false;
    Host().events.onEvents = [&] {
        if (done || !IsUp() || Text("LoadingBtn.Caption") != "Gamestart..") return;
        done = true;
        EmulatorComesUp();
        Click(".Command1");
        EXPECT_FALSE(IsUp());
    };
    LaunchBee();
    EXPECT_TRUE(done);
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    EXPECT_FALSE(IsUp());
}

// What it types would go to whatever is in front then.
TEST_F(LoadingLaunches, NoScriptRunsForAGameThatTheUserHasEndedMeanwhile) {
    Splash("6", {{"RunVBS_Script", "1"}});
    tree.Write("Config/Alpha/Startscript.vbs", "x");
    options.windowsStartFiles = true;
    const std::vector<std::pair<const char*, std::function<void()>>> ways{
        {"nothing", [] {}},
        {"screen", [this] { EmulatorComesUp(), Click(".Command1"); }},
        {"screen, before it is up", [this] { Click(".Command1"); }},
        {"picture", [this] { EmulatorComesUp(), Call("AppRunningPicture_Click"); }},
        {"button and its box",
         [this] { EmulatorComesUp(), Do("answer", "Yes"), Do("click", "Form1.LoadingBtn"); }},
        {"pad's button", [this] { EmulatorComesUp(), session->Routines().watch.KillRunning(); }},
    };
    std::size_t expected = 2;
    for (const auto& [name, end] : ways) {
        Start();
        bool done = false;
        Host().events.onEvents = [&, &end = end] {
            if (done || !IsUp() || Text("LoadingBtn.Caption") != "Gamestart..") return;
            done = true;
            end();
        };
        LaunchBee();
        EXPECT_TRUE(done) << name;
        EXPECT_EQ(Runs(), expected) << name;
        expected = 1;
    }
}

TEST_F(LoadingLaunches, ComesUpForEachWayToStartAGame) {
    tree.Write(
        "Config/Favoriten_Global.ini",
        ProgramDirectory::Encoded("[Favoriten_Global]\r\nFav1_Name=Cat\r\nFav1_System=Beta\r\n"
                                  "Fav1_FullPath=" +
                                  tree.Path("Roms/Beta/Cat (1992)(Maker).adf") + "\r\n"));
    tree.Write("Config/Alpha/Favoriten.ini",
               ProgramDirectory::Encoded("[Favoriten]\r\nFav0_Name=Bee\r\nFav0_FullPath=" +
                                         tree.Path("Roms/Alpha/Bee (1991)(Maker).adf") + "\r\n"));
    const std::vector<std::pair<const char*, std::function<void()>>> ways{
        {"simple list",
         [this] { Do("click", "Form1.Label2"), Do("dblclick", "Form1.WIthoutDoubles", 1); }},
        {"favourites",
         [this] { Do("click", "Form1.Label1"), Do("dblclick", "Form1.FavoritenListe", 0); }},
        {"global favourite",
         [this] {
             Do("focus", "Form1.EmuListbox");
             Do("click", "Form1.Label1");
             Do("dblclick", "Form1.FavoritenListeGlobal", 0);
         }},
        {"hits of all emulators",
         [this] {
             SearchAllFor("Cat");
             // Loads its emulator, and the game is there.
             Do("dblclick", "Form1.GlobalSearchList", 0);
             Do("dblclick", Visible("SuchErgList") ? "Form1.SuchErgList" : "Form1.WIthoutDoubles",
                0);
         }},
        {"handed over", [this] { Do("summon", tree.Path("Roms/Alpha/Bee (1991)(Maker).adf")); }},
    };
    for (const auto& [name, start] : ways) {
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
        Start();
        start();
        EXPECT_EQ(Runs(), 1U) << name;
        EXPECT_TRUE(IsUp()) << name;
        Click("");
    }
}

}  // namespace
}  // namespace kivu::scenarios
