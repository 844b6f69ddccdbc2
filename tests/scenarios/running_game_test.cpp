#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

// What the user does while a game runs, and what stands in the window after it.
class RunningGame : public LoadedScenario {
 protected:
    void Tick() { Do("tick", "Form1.EmuActiveTimer"); }
    // A game that is seen, or one in its first seconds.
    void Run(bool seen) {
        Start();
        LaunchBee();
        if (!seen) return;
        EmulatorComesUp();
        Tick();
    }
    void PlayThrough() {
        LaunchBee();
        EmulatorComesUp();
        Do("tick", "Form1.EmuActiveTimer", 4);
        EmulatorGoes();
        Tick();
        ASSERT_EQ(Get("GameIsRunning"), false);
    }
    void ExpectNoList(const char* when) {
        for (const char* list :
             {"FavoritenListe", "WIthoutDoubles", "UAE_Short", "SuchErgList", "EmulatorLongListbox",
              "FavoritenListeGlobal", "GlobalSearchList", "Label2", "Label4"}) {
            EXPECT_FALSE(Visible(list)) << list << ' ' << when;
        }
        EXPECT_TRUE(Visible("LoadingBtn")) << when;
        EXPECT_TRUE(Visible("EmuListbox")) << when;
    }
};

TEST_F(RunningGame, PictureOfAnEmulatorThatRunsAgainGoesWithIt) {
    Start();
    PlayThrough();
    EmulatorComesUp();
    Do("dblclick", "Form1.EmuListbox", 1);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_TRUE(Visible("AppRunningPicture"));
    EXPECT_EQ(Get("EmuActiveTimer.Enabled"), true);
    ExpectNoList("while it runs");
    EmulatorGoes();
    Tick();
    EXPECT_FALSE(Visible("AppRunningPicture"));
    EXPECT_TRUE(Visible("Label2"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_EQ(Get("EmuActiveTimer.Enabled"), false);
}

TEST_F(RunningGame, KilledWhenItRunsAgainItGoesToo) {
    Start();
    PlayThrough();
    EmulatorComesUp();
    Do("dblclick", "Form1.EmuListbox", 1);
    Do("click", "Form1.AppRunningPicture");
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    Tick();
    EXPECT_FALSE(Visible("AppRunningPicture"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_EQ(Get("EmuActiveTimer.Enabled"), false);
}

TEST_F(RunningGame, TitleLineSaysTheTitleAtItsEnd) {
    tree.Write("Config/Alpha/Skin/Skin.ini",
               ProgramDirectory::Profile({{"TitleString", "My games"}}));
    Start();
    Call("StartGame", tree.Path("Roms/Alpha/Bee (1991)(Maker).adf"));
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer", 4);
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Running: alpha");
    EmulatorGoes();
    Tick();
    EXPECT_EQ(Get("Caption"), "My games");
    EXPECT_TRUE(Visible("MyCaptionLabel"));
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "My games");
}

TEST_F(RunningGame, TitleLineComesBackWithWhateverIsSaidInIt) {
    Start();
    PlayThrough();
    const auto hide = [this] { Do("set", "Form1.MyCaptionLabel.Visible", false); };
    hide();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("click", "Form1.AddToFavorit");
    EXPECT_TRUE(Visible("MyCaptionLabel"));
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Favorite add: Bee (1991)(Maker)");
    // The same text once more.
    hide();
    Do("set", "Form1.MyCaptionLabel.Caption", "Favorite add: Bee (1991)(Maker)");
    EXPECT_TRUE(Visible("MyCaptionLabel"));
    hide();
    Do("click", "Form1.LoadBtn");
    EXPECT_TRUE(Visible("MyCaptionLabel"));
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), Get("Caption"));
}

TEST_F(RunningGame, TitleLineStaysThroughASecondEnd) {
    Start();
    PlayThrough();
    // A change of emulator looks once more for what ran last.
    Do("dblclick", "Form1.EmuListbox", 1);
    EXPECT_TRUE(Visible("MyCaptionLabel"));
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), Get("Caption"));
}

TEST_F(RunningGame, LettersDoNotGoIntoTheSearchBox) {
    for (const bool seen : {true, false}) {
        Run(seen);
        const Json text = Get("SearchDblsTxt.Text");
        Do("focus", "Form1.EmuListbox");
        for (const char* list : {"Form1.EmuListbox", "Form1.EmulatorLongListbox"}) {
            Do("key", list, "b");
            EXPECT_EQ(Get("SearchDblsTxt.Text"), text) << list << seen;
            EXPECT_FALSE(Visible("SearchDblsTxt")) << list << seen;
            EXPECT_EQ(Get("Focus"), list) << seen;
        }
        Do("key", "Form1", "Ctrl+F");
        EXPECT_FALSE(Visible("SearchDblsTxt")) << seen;
    }
}

TEST_F(RunningGame, LettersSearchAgainAfterItsEnd) {
    Run(true);
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer", 3);
    Do("key", "Form1.WIthoutDoubles", "b");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "b");
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
}

TEST_F(RunningGame, ArrowsBringNoListUp) {
    for (const bool seen : {true, false}) {
        Run(seen);
        Do("key", "Form1", "Right");
        Do("key", "Form1", "Left");
        ExpectNoList(seen ? "seen" : "coming up");
    }
}

TEST_F(RunningGame, RescanLeavesTheWindowAsItWas) {
    for (const bool seen : {true, false}) {
        tree.Write("Roms/Alpha/Dog (1993)(Maker).adf", "x");
        Run(seen);
        const Json sign = Get("LoadingBtn.Caption"), line = Get("MyCaptionLabel.Caption");
        const Json title = Get("Caption");
        Do("click", "Form1.LoadBtn");
        EXPECT_EQ(Get("UAE_Short.ListCount"), 4) << seen;
        EXPECT_EQ(Get("LoadingBtn.Caption"), sign) << seen;
        EXPECT_EQ(Get("Current_LoadingSmallBtn.Caption"), sign) << seen;
        EXPECT_EQ(Get("MyCaptionLabel.Caption"), line) << seen;
        EXPECT_EQ(Get("Caption"), title) << seen;
        EXPECT_EQ(Get("LoadBtn.Enabled"), true) << seen;
        EXPECT_EQ(Visible("AppRunningPicture"), seen);
        ExpectNoList(seen ? "seen" : "coming up");
        if (seen) EmulatorGoes();
        Do("tick", "Form1.EmuActiveTimer", seen ? 2 : 3);
        EXPECT_EQ(Get("GameIsRunning"), false) << seen;
        EXPECT_TRUE(Visible("WIthoutDoubles")) << seen;
    }
}

TEST_F(RunningGame, ChoiceThatIsLeftBringsNoListUp) {
    for (const bool seen : {true, false}) {
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
        Run(seen);
        Do("click", "Form1.EmuListbox");
        EXPECT_TRUE(Visible("EmulatorLongListbox")) << seen;
        Do("key", "Form1", "Escape");
        ExpectNoList(seen ? "seen" : "coming up");
        Do("dblclick", "Form1.EmuListbox", 0);
        ExpectNoList("chosen again");
        Do("dblclick", "Form1.EmuListbox", 1);
        EXPECT_EQ(Get("CurrentEmuIndex"), 1) << seen;
        ExpectNoList("another one chosen");
    }
}

TEST_F(RunningGame, MissingGameBesideItLeavesTheWindowAsItIs) {
    for (const bool seen : {true, false}) {
        Run(seen);
        std::filesystem::remove(tree.Path("Roms/Beta/Cat (1992)(Maker).adf"));
        Call("StartGame", tree.Path("Roms/Beta/Cat (1992)(Maker).adf"));
        EXPECT_EQ(Do("boxes")["value"].size(), 1U);
        ExpectNoList(seen ? "seen" : "coming up");
        EXPECT_EQ(Get("GameIsRunning"), true);
        EXPECT_EQ(Get("EmuActiveTimer.Enabled"), true);
    }
}

}  // namespace
}  // namespace kivu::scenarios
