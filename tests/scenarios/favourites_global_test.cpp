#include <algorithm>

#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

class FavouritesGlobal : public LoadedScenario {
 protected:
    const std::string file = "Config/Favoriten_Global.ini";
    const std::string header =
        "[Favoriten_Global]\r\nFav0_Name=\r\nFav0_System=\r\nFav0_FullPath=\r\n";

    std::string Lines(int number, const std::string& name, const std::string& system,
                      const std::string& image) {
        const std::string key = "Fav" + std::to_string(number);
        return key + "_Name=" + name + "\r\n" + key + "_System=" + system + "\r\n" + key +
               "_FullPath=" + tree.Path(image) + "\r\n";
    }
    void Store() {
        tree.Write(file,
                   header +
                       Lines(1, "Bee (1991)(Maker)", "Alpha", "Roms/Alpha/Bee (1991)(Maker).adf") +
                       Lines(2, "Cat (1992)(Maker)", "Beta", "Roms/Beta/Cat (1992)(Maker).adf"));
    }
    // The emulators, then the tab of the favourites.
    void Show() {
        Do("focus", "Form1.EmuListbox");
        Do("click", "Form1.Label1");
    }
};

TEST_F(FavouritesGlobal, GameIsAddedByTheButton) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("beeps");
    Do("click", "Form1.AddToFavorit_Global");
    EXPECT_EQ(tree.Read(file),
              header + Lines(1, "Bee (1991)(Maker)", "Alpha", "Roms/Alpha/Bee (1991)(Maker).adf"));
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Add global Favorite: Bee (1991)(Maker)");
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_EQ(Get("Focus"), "Form1.WIthoutDoubles");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
}

TEST_F(FavouritesGlobal, FavouritesTabShowsThemWhileTheChoiceIsOpen) {
    Store();
    Start();
    Show();
    EXPECT_TRUE(Visible("FavoritenListeGlobal"));
    EXPECT_FALSE(Visible("FavoritenListe"));
    EXPECT_TRUE(Visible("DeLFav"));
    EXPECT_EQ(Get("Label1.Caption"), "Globale Favoriten: 2  ");
    EXPECT_EQ(Get("FavoritenListeGlobal.List"),
              Json({"Bee (1991)(Maker)  :  Alpha", "Cat (1992)(Maker)  :  Beta"}));
    EXPECT_EQ(Get("Focus"), "Form1.FavoritenListeGlobal");
}

TEST_F(FavouritesGlobal, EscapeAndTheTabsLeadBackToTheGames) {
    Store();
    Start();
    Show();
    Do("key", "Form1", "Escape");
    EXPECT_TRUE(Do("boxes")["value"].empty());
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_EQ(Get("ListMode"), "2");
    Show();
    Do("select", "Form1.FavoritenListeGlobal", 1);
    Do("click", "Form1.Label3");
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_FALSE(Visible("DeLFav"));
    EXPECT_TRUE(Visible("UAE_Short"));
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 0);
    EXPECT_EQ(Get("EmuListbox.Text"), "Alpha");
    EXPECT_EQ(Get("Label1.Caption"), " Favorites (0) ");
}

TEST_F(FavouritesGlobal, FavouritesTabGoesToTheRightAndBack) {
    Store();
    Start();
    const Json home = Get("Label1.Left");
    Do("focus", "Form1.EmuListbox");
    EXPECT_EQ(Get("Label1.Left"), Get("Width").get<int>() - Get("Label1.Width").get<int>() - 400);
    Do("click", "Form1.Label1");
    EXPECT_EQ(Get("Label1.Left"), home);
    Do("key", "Form1", "Escape");
    EXPECT_EQ(Get("Label1.Left"), home);
}

TEST_F(FavouritesGlobal, MissingFileIsReportedAndTheListStays) {
    Store();
    std::filesystem::remove(tree.Path("Roms/Beta/Cat (1992)(Maker).adf"));
    Start();
    Show();
    Do("boxes");
    Do("dblclick", "Form1.FavoritenListeGlobal", 1);
    const Json boxes = Do("boxes")["value"];
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["title"], "Game - File not found!");
    EXPECT_TRUE(Do("runs")["value"].empty());
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_TRUE(Visible("FavoritenListeGlobal"));
    EXPECT_TRUE(Visible("EmuListbox"));
    Do("key", "Form1", "Escape");
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_FALSE(Visible("LoadingBtn"));
}

TEST_F(FavouritesGlobal, UnknownEmulatorBeepsAndStartsNothing) {
    Store();
    tree.Write(file, tree.Read(file) + Lines(3, "Dog", "Gamma", "Roms/Beta/Cat (1992)(Maker).adf"));
    Start();
    Show();
    Do("beeps");
    Do("dblclick", "Form1.FavoritenListeGlobal", 2);
    // Once for the click, once for the double click.
    EXPECT_EQ(Do("beeps")["value"], 2);
    EXPECT_TRUE(Do("runs")["value"].empty());
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    Do("click", "Form1.DeLFav");
    EXPECT_EQ(Get("FavoritenListeGlobal.ListCount"), 2);
}

TEST_F(FavouritesGlobal, DoubleClickSwitchesAndStarts) {
    Store();
    Start();
    Show();
    Do("dblclick", "Form1.FavoritenListeGlobal", 1);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "LastEmulator"), "Beta");
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_NE(tree.Read("Config/Beta/Kivu_tmp.bat").find("beta"), std::string::npos);
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "Cat (1992)(Maker)");
    EXPECT_EQ(Get("SuchErgList.List"), Json({"Cat (1992)(Maker)"}));
    EXPECT_TRUE(Text("CURRENT_PROGRAM_STARTED").starts_with("Cat (1992)(Maker)"));
    EXPECT_TRUE(Visible("FavoritenListeGlobal"));
    EXPECT_TRUE(Visible("EmuListbox"));
}

TEST_F(FavouritesGlobal, EnterStartsAFavouriteOfTheLoadedEmulator) {
    Store();
    Start();
    Show();
    Do("select", "Form1.FavoritenListeGlobal", 0);
    Do("key", "Form1", "Enter");
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_NE(tree.Read("Config/Alpha/Kivu_tmp.bat").find("Bee (1991)"), std::string::npos);
}

TEST_F(FavouritesGlobal, GamesComeBackWhenTheGameEnds) {
    Store();
    Start();
    Show();
    Do("dblclick", "Form1.FavoritenListeGlobal", 1);
    Do("process", "add", "beta", 12);
    Do("tick", "Form1.EmuActiveTimer", 4);
    EXPECT_TRUE(Visible("AppRunningPicture"));
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    Do("process", "remove", 12);
    Do("tick", "Form1.EmuActiveTimer");
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
}

// Whichever way the game ends and whether it was ever seen.
TEST_F(FavouritesGlobal, TabSaysTheEmulatorsFavouritesAfterAGame) {
    options.language = "English";
    Store();
    for (const bool seen : {true, false}) {
        for (const bool killed : {true, false}) {
            for (const int row : {0, 1}) {
                Start();
                Show();
                EXPECT_EQ(Get("Label1.Caption"), "Globale Favoriten: 2  ");
                Do("dblclick", "Form1.FavoritenListeGlobal", row);
                if (seen) {
                    Do("process", "add", row == 0 ? "alpha" : "beta", 12);
                    Do("tick", "Form1.EmuActiveTimer", 4);
                    if (killed) {
                        Do("click", "Form1.AppRunningPicture");
                    } else {
                        Do("process", "remove", 12);
                    }
                }
                Do("tick", "Form1.EmuActiveTimer", 4);
                EXPECT_EQ(Get("EmuActiveTimer.Enabled"), false);
                EXPECT_TRUE(Visible("Label1"));
                EXPECT_EQ(Get("Label1.Caption"), " Favorites (0) ") << seen << killed << row;
                EXPECT_FALSE(Visible("FavoritenListeGlobal"));
            }
        }
    }
}

TEST_F(FavouritesGlobal, RemoveButtonTakesTheSelectedOne) {
    Store();
    Start();
    Show();
    Do("select", "Form1.FavoritenListeGlobal", 0);
    Do("click", "Form1.DeLFav");
    EXPECT_EQ(tree.Read(file),
              header + Lines(1, "Cat (1992)(Maker)", "Beta", "Roms/Beta/Cat (1992)(Maker).adf"));
    EXPECT_EQ(Get("FavoritenListeGlobal.List"), Json({"Cat (1992)(Maker)  :  Beta"}));
    EXPECT_TRUE(Visible("DeLFav"));
    Show();
    EXPECT_EQ(Get("Label1.Caption"), "Globale Favoriten: 1  ");
}

TEST_F(FavouritesGlobal, ClickOnlySetsTheEmulatorsRow) {
    Store();
    Start();
    Show();
    Do("select", "Form1.FavoritenListeGlobal", 1);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 1);
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
    EXPECT_TRUE(Visible("FavoritenListeGlobal"));
}

TEST_F(FavouritesGlobal, NothingIsToRemoveOnceALetterHasPutThemAway) {
    Store();
    Start();
    Show();
    EXPECT_TRUE(Visible("DeLFav"));
    Do("type", "Form1.SearchDblsTxt", "b");
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_FALSE(Visible("DeLFav"));
}

TEST_F(FavouritesGlobal, FullStoreTakesNoMoreAndSaysSoByABeep) {
    std::string bytes = header;
    for (int i = 1; i <= 1000; ++i)
        bytes += Lines(i, "G" + std::to_string(i), "Alpha", "g");
    tree.Write(file, bytes);
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    const std::string title = Text("MyCaptionLabel.Caption");
    Do("beeps");
    Do("click", "Form1.AddToFavorit_Global");
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), title);
    EXPECT_EQ(tree.Read(file), bytes);
}

TEST_F(FavouritesGlobal, RemovalThatTheDiskDoesNotTakeIsNoneAndSaysSoByABeep) {
    Store();
    Start();
    Show();
    const Json rows = Get("FavoritenListeGlobal.List");
    const std::string stored = tree.Read(file);
    Do("select", "Form1.FavoritenListeGlobal", 0);
    Do("beeps");
    Do("disk", "full");
    Do("click", "Form1.DeLFav");
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_EQ(Get("FavoritenListeGlobal.List"), rows);
    EXPECT_EQ(tree.Read(file), stored);
    Do("disk", "fine");
    Do("click", "Form1.DeLFav");
    EXPECT_EQ(Get("FavoritenListeGlobal.List").size(), rows.size() - 1);
}

TEST_F(FavouritesGlobal, ResizeKeepsTheListInFront) {
    Store();
    Start();
    Show();
    Do("select", "Form1.FavoritenListeGlobal", 1);
    Do("resize", "Form1", 15000, 10000);
    EXPECT_TRUE(Visible("FavoritenListeGlobal"));
    const auto& controls = Form().Children();
    const auto place = [&](forms::Control& control) {
        return std::find(controls.begin(), controls.end(), &control) - controls.begin();
    };
    // In front of the emulators, which lie in the same place.
    EXPECT_GT(place(Form().FavoritenListeGlobal), place(Form().EmulatorLongListbox));
    // A game list would be brought up behind it by the mode, which is that of the favourites.
    EXPECT_FALSE(Visible("FavoritenListe"));
    Do("state", "Form1", 2);
    EXPECT_FALSE(Visible("FavoritenListe"));
    EXPECT_TRUE(Visible("FavoritenListeGlobal"));
}

}  // namespace
}  // namespace kivu::scenarios
