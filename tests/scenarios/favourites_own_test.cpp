#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

class FavouritesOwn : public LoadedScenario {
 protected:
    const std::string file = "Config/Alpha/Favoriten.ini";
    const std::string bee = testing::HostPath("/Roms/Alpha/Bee (1991)(Maker).adf");
    const std::string ant2 = testing::HostPath("/Roms/Alpha/Ant (1990)(Maker)(Disk 2 of 2).adf");

    // The store as the program writes it.
    void Store(const std::vector<std::pair<std::string, std::string>>& favourites) {
        std::string bytes = "[Favoriten]\r\n";
        int number = 0;
        for (const auto& [name, path] : favourites) {
            const std::string key = "Fav" + std::to_string(number++);
            bytes += key + "_Name=" + name + "\r\n" + key + "_FullPath=" + path + "\r\n";
        }
        tree.Write(file, bytes);
    }
    Json LastBox() { return Do("boxes")["value"].back(); }
};

TEST_F(FavouritesOwn, WithoutFavouritesTheSimpleListIsShownAndOffersToAdd) {
    Start();
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_TRUE(Visible("AddToFavorit"));
    EXPECT_TRUE(Visible("AddToFavorit_Global"));
    EXPECT_FALSE(Visible("DeLFav"));
    EXPECT_EQ(Get("Label1.Caption"), " Favorites (0) ");
    EXPECT_FALSE(std::filesystem::exists(tree.Path(file)));
}

TEST_F(FavouritesOwn, GameIsAddedByTheButtonAndIsThereAfterARestart) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("click", "Form1.AddToFavorit");
    EXPECT_EQ(tree.Read(file),
              "[Favoriten]\r\nFav0_Name=Bee (1991)(Maker)\r\nFav0_FullPath=" + bee + "\r\n");
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Favorite add: Bee (1991)(Maker)");
    EXPECT_EQ(Get("Label1.Caption"), " Favorites (1) ");
    Start();
    EXPECT_TRUE(Visible("FavoritenListe"));
    EXPECT_EQ(Get("ListMode"), "1");
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Bee (1991)(Maker)"}));
    EXPECT_EQ(Get("FavoritenListe.ListIndex"), 0);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 2);
    EXPECT_EQ(Get("Focus"), "Form1.FavoritenListe");
}

TEST_F(FavouritesOwn, ClickOffersToRemoveAndFillsTheDrives) {
    Store({{"Ant", ant2}, {"Bee", bee}});
    Start();
    Do("select", "Form1.FavoritenListe", 1);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 2);
    EXPECT_FALSE(Visible("AddToFavorit"));
    EXPECT_TRUE(Visible("AddToFavorit_Global"));
    EXPECT_TRUE(Visible("DeLFav"));
    Do("select", "Form1.FavoritenListe", 0);
    EXPECT_EQ(Get("DiskSlots")[0], tree.Path("Roms/Alpha/Ant (1990)(Maker)(Disk 1 of 2).adf"));
    EXPECT_EQ(Get("DiskSlots")[1], tree.Path("Roms/Alpha/Ant (1990)(Maker)(Disk 2 of 2).adf"));
    EXPECT_EQ(Get("Check_Dfx(0).ToolTipText"), "Ant (1990)(Maker)(Disk 2 of 2).adf");
    EXPECT_EQ(Get("Check_Dfx(0).Value"), 1);
}

TEST_F(FavouritesOwn, ChosenFavouriteCanBeRemovedAsSoonAsItsTabIsInFront) {
    Store({{"Ant", ant2}, {"Bee", bee}, {"Cat", "/gone/Cat.adf"}});
    Start();
    EXPECT_EQ(Get("FavoritenListe.ListIndex"), 0);
    EXPECT_TRUE(Visible("DeLFav"));
    Do("click", "Form1.Label2");
    EXPECT_FALSE(Visible("DeLFav"));
    EXPECT_TRUE(Visible("AddToFavorit"));
    Do("click", "Form1.Label1");
    EXPECT_TRUE(Visible("DeLFav"));
    EXPECT_FALSE(Visible("AddToFavorit"));
    EXPECT_EQ(Get("JoystickFocus"), 1);
    Do("click", "Form1.DeLFav");
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Bee", "Cat"}));
    // Nothing is chosen any more.
    Do("click", "Form1.Label2");
    Do("click", "Form1.Label1");
    EXPECT_FALSE(Visible("DeLFav"));
}

TEST_F(FavouritesOwn, ArrowsChooseTheGameOfEachRow) {
    Store({{"Ant", ant2}, {"Bee", bee}});
    Start();
    Do("key", "Form1", "Down");
    EXPECT_EQ(Get("FavoritenListe.ListIndex"), 1);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 2);
    Do("key", "Form1", "Up");
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 1);
}

TEST_F(FavouritesOwn, MissingFavouriteStartsNothing) {
    Store({{"Bee", bee}, {"Ghost", "/old/Ghost.adf"}});
    Start();
    Do("answer", "No", "No");
    Do("dblclick", "Form1.FavoritenListe", 1);
    Do("key", "Form1", "Enter");
    EXPECT_EQ(Do("boxes")["value"].size(), 2U);
    EXPECT_TRUE(Do("runs")["value"].empty());
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Bee", "Ghost"}));
    EXPECT_TRUE(Visible("DeLFav"));
}

TEST_F(FavouritesOwn, OddStoreOfAThousandIsShownWholeAndSurvivesAnAddition) {
    std::string bytes = "; mine\r\n[favoriten]\r\nNote=kept\r\n";
    for (int i = 0; i < 2000; i += 2) {
        const std::string n = std::to_string(i / 2), key = "fAV" + n;
        if (i / 2 == 500) continue;
        bytes += key + "_name=G = [" + n + "]\r\n" + key + "_FULLPATH=/G/" + n + "].adf\r\n";
        bytes += key + "_name=double\r\n";
    }
    tree.Write(file, bytes);
    Start();
    EXPECT_EQ(Get("FavoritenListe.ListCount"), 999);
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    Do("click", "Form1.AddToFavorit");
    Start();
    const Json rows = Get("FavoritenListe.List");
    ASSERT_EQ(rows.size(), 1000U);
    EXPECT_EQ(rows[0], "Bee (1991)(Maker)");
    EXPECT_EQ(rows[1], "G = [0]");
    EXPECT_EQ(rows[501], "G = [501]");
    EXPECT_EQ(rows[999], "G = [999]");
    EXPECT_TRUE(tree.Read(file).starts_with("; mine\r\n[favoriten]\r\nNote=kept\r\n"));
}

TEST_F(FavouritesOwn, DoubleClickAndEnterStartTheFavourite) {
    Store({{"Ant", ant2}, {"Bee", bee}});
    Start();
    Do("dblclick", "Form1.FavoritenListe", 1);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_NE(tree.Read("Config/Alpha/Kivu_tmp.bat").find("Bee (1991)"), std::string::npos);
    Start();
    Do("select", "Form1.FavoritenListe", 0);
    Do("key", "Form1", "Enter");
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_NE(tree.Read("Config/Alpha/Kivu_tmp.bat").find("Disk 2 of 2"), std::string::npos);
}

TEST_F(FavouritesOwn, FavouriteIsRemovedByTheButton) {
    Store({{"Ant", ant2}, {"Bee", bee}, {"Cat", testing::HostPath("/gone/Cat.adf")}});
    Start();
    Do("select", "Form1.FavoritenListe", 1);
    Do("click", "Form1.DeLFav");
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Ant", "Cat"}));
    EXPECT_EQ(Get("Label1.Caption"), " Favorites (2) ");
    EXPECT_FALSE(Visible("DeLFav"));
    EXPECT_TRUE(Visible("EmuListbox"));
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("Focus"), "Form1.FavoritenListe");
    EXPECT_EQ(tree.Read(file),
              "[Favoriten]\r\nFav0_Name=Ant\r\nFav0_FullPath=" + ant2 +
                  "\r\nFav1_Name=Cat\r\nFav1_FullPath=" + testing::HostPath("/gone/Cat.adf") +
                  "\r\n"
                  "Fav2_Name=\r\nFav2_FullPath=\r\n");
}

TEST_F(FavouritesOwn, DeleteKeyAsksFirst) {
    Store({{"Ant", ant2}});
    Start();
    Do("answer", "No", "Yes");
    Do("key", "Form1.FavoritenListe", "Delete");
    EXPECT_EQ(LastBox()["text"], "Remove from Favorite-List:\r\rAnt?");
    EXPECT_EQ(Get("FavoritenListe.ListCount"), 1);
    Do("key", "Form1.FavoritenListe", "Delete");
    EXPECT_EQ(Get("FavoritenListe.ListCount"), 0);
    EXPECT_EQ(tree.Read(file), "[Favoriten]\r\nFav0_Name=\r\nFav0_FullPath=\r\n");
}

TEST_F(FavouritesOwn, RightClickRenames) {
    Store({{"Ant", ant2}, {"Bee", bee}});
    Start();
    Do("input", "Käfer = [Bee]");
    Do("rightclick", "Form1.FavoritenListe", 1);
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Ant", "Käfer = [Bee]"}));
    EXPECT_NE(tree.Read(file).find(tree.Encoded("Fav1_Name=Käfer = [Bee]\r\n")), std::string::npos);
    Start();
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Ant", "Käfer = [Bee]"}));
    Do("select", "Form1.FavoritenListe", 1);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 2);
}

TEST_F(FavouritesOwn, EachEmulatorHasItsOwn) {
    Store({{"Bee", bee}});
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Get("FavoritenListe.ListCount"), 0);
    Do("click", "Form1.AddToFavorit");
    EXPECT_EQ(Get("Label1.Caption"), " Favorites (1) ");
    EXPECT_EQ(tree.Stored("Config/Beta/Favoriten.ini", "Fav0_Name"), "Cat (1992)(Maker)");
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 0);
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Bee"}));
    EXPECT_TRUE(Visible("FavoritenListe"));
}

TEST_F(FavouritesOwn, MissingFavouriteIsAskedAboutAndMovedOnesAreRepaired) {
    Store({{"Bee", "/old/Bee (1991)(Maker).adf"}, {"Ghost", "/old/Ghost.adf"}, {"Disk 2", ant2}});
    Start();
    // The first one has been found by its file name.
    EXPECT_TRUE(Do("boxes")["value"].empty());
    Do("answer", "Yes");
    Do("select", "Form1.FavoritenListe", 1);
    const Json boxes = Do("boxes")["value"];
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0]["title"], "Favorite not found - Repair?");
    EXPECT_EQ(boxes[1]["title"], "Repair result:");
    EXPECT_EQ(boxes[1]["text"], "Repaired:Bee\rDeleted: Ghost\r");
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Bee", "Disk 2"}));
    EXPECT_EQ(tree.Stored(file, "Fav0_FullPath"), bee);
}

TEST_F(FavouritesOwn, GermanWords) {
    options.language = "German";
    Store({{"Ant", "/old/Nothing.adf"}});
    Start();
    EXPECT_EQ(LastBox()["text"],
              "Datei wurde nicht gefunden!\rAnt\rSollen die Favoriten repariert werden?");
    EXPECT_EQ(Get("Label1.Caption"), " Favoriten (1) ");
    Do("answer", "Yes");
    Do("key", "Form1.FavoritenListe", "Delete");
    EXPECT_EQ(LastBox()["text"], "Aus Favoriten entfernen:\r\rAnt?");
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    Do("click", "Form1.AddToFavorit");
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Neuer Favorit: Bee (1991)(Maker)");
}

TEST_F(FavouritesOwn, NothingIsToRemoveOnceTheSearchBoxIsInFront) {
    Store({{"Ant", ant2}, {"Bee", bee}});
    Start();
    Do("select", "Form1.FavoritenListe", 1);
    EXPECT_TRUE(Visible("DeLFav"));
    Do("click", "Form1.SearchDblsTxt");
    EXPECT_FALSE(Visible("DeLFav"));
    EXPECT_TRUE(Visible("EmuListbox"));
    Do("click", "Form1.Label1");
    EXPECT_TRUE(Visible("DeLFav"));
    // A key turns the tabs too.
    Do("key", "Form1", "Right");
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_FALSE(Visible("DeLFav"));
}

TEST_F(FavouritesOwn, FullDiskIsNoAddition) {
    Store({{"Ant", ant2}});
    Start();
    files.OnlyFor("Favoriten");
    files.FillDisk();
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("beeps");
    const std::string title = Text("MyCaptionLabel.Caption");
    Do("click", "Form1.AddToFavorit");
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), title);
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Ant"}));
    Do("click", "Form1.AddToFavorit_Global");
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), title);
    EXPECT_EQ(Do("beeps")["value"], 1);
    files.Heal();
    Do("click", "Form1.AddToFavorit_Global");
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Add global Favorite: Bee (1991)(Maker)");
}

TEST_F(FavouritesOwn, FullStoreTakesNoMoreAndSaysSoByABeep) {
    std::vector<std::pair<std::string, std::string>> favourites;
    for (int i = 0; i < 1000; ++i)
        favourites.emplace_back("G" + std::to_string(i), "/G/" + std::to_string(i) + ".adf");
    favourites.emplace_back("Ant", ant2);
    Store(favourites);
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    Do("beeps");
    Do("click", "Form1.AddToFavorit");
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_NE(Get("MyCaptionLabel.Caption"), "Favorite add: Bee (1991)(Maker)");
    EXPECT_EQ(Get("FavoritenListe.ListCount"), 1001);
    // What is there already is no failure.
    Do("select", "Form1.UAE_Short", 1);
    Do("click", "Form1.AddToFavorit");
    EXPECT_EQ(Do("beeps")["value"], 0);
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Favorite add: Ant (1990)(Maker)");
}

TEST_F(FavouritesOwn, FullDiskLosesNothing) {
    Store({{"Ant", ant2}});
    const std::string before = tree.Read(file);
    Start();
    files.OnlyFor("Favoriten");
    files.FillDisk();
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("click", "Form1.AddToFavorit");
    EXPECT_EQ(tree.Read(file), before);
    files.Heal();
    Do("click", "Form1.AddToFavorit");
    Start();
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Ant", "Bee (1991)(Maker)"}));
}

}  // namespace
}  // namespace kivu::scenarios
