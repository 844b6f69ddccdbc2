// What Enter, the double clicks and the favourites' buttons act on: the row marked in the list in
// front, whatever another list has selected since.

#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

class MarkedRow : public LoadedScenario {
 protected:
    MarkedRow() {
        WriteGames();
        options.language = "English";
    }
    void WriteGames() {
        tree.WriteCache("Alpha", {{Path(ant1), "Ant (1990)(Maker)"},
                                  {Path(ant2), "Ant (1990)(Maker)"},
                                  {Path(bee), "Bee (1991)(Maker)"},
                                  {Path(cow), "Cow (1992)(Maker)"}});
        for (const std::string& file : {bee, cow})
            tree.Write("Roms/Alpha/" + file, "x");
    }
    static std::string Path(const std::string& file) { return "/Roms/Alpha/" + file; }

    // Bee is marked in the simple list and Cow selected in the complete one; the simple list is in
    // front again.
    void MarkBeeAndSelectCow() {
        Start();
        Do("select", "Form1.WIthoutDoubles", 1);
        SelectCow();
        Do("click", "Form1.Label2");
    }
    // The same with Bee marked in the results.
    void FindBeeAndSelectCow() {
        Start();
        Do("type", "Form1.SearchDblsTxt", "bee");
        Do("key", "Form1.SearchDblsTxt", "Enter");
        SelectCow();
        Do("click", "Form1.Label4");
    }
    // Bee's file goes, and the rescan takes it out of the complete list.
    void MarkBeeAndLoseIt() {
        Start();
        Do("select", "Form1.WIthoutDoubles", 1);
        LoseBee();
        Do("select", "Form1.UAE_Short", 2);
        Do("click", "Form1.Label2");
    }
    void LoseBee() {
        std::filesystem::remove(tree.Path("Roms/Alpha/" + bee));
        Do("click", "Form1.LoadBtn");
    }
    void SelectCow() {
        Do("click", "Form1.Label3");
        Do("select", "Form1.UAE_Short", 3);
    }
    // The start file; empty when nothing has been started.
    std::string Started() {
        if (Do("runs")["value"].empty()) return "";
        return tree.Read("Config/Alpha/Kivu_tmp.bat");
    }
    std::string Favourite() { return tree.Exists(own) ? tree.Stored(own, "Fav0_FullPath") : ""; }
    std::string GlobalFavourite() {
        return tree.Exists(global) ? tree.Stored(global, "Fav1_Name") : "";
    }
    void ExpectToldAboutBee() {
        const Json shown = Do("boxes")["value"];
        ASSERT_EQ(shown.size(), 1U);
        EXPECT_EQ(shown.back()["title"], "Game - File not found!");
        EXPECT_EQ(shown.back()["text"], "File not found:\rBee (1991)(Maker)");
    }

    const std::string ant1 = "Ant (1990)(Maker)(Disk 1 of 2).adf";
    const std::string ant2 = "Ant (1990)(Maker)(Disk 2 of 2).adf";
    const std::string bee = "Bee (1991)(Maker).adf";
    const std::string cow = "Cowboys (1992)(Other).adf";
    const std::string own = "Config/Alpha/Favoriten.ini";
    const std::string global = "Config/Favoriten_Global.ini";
};

TEST_F(MarkedRow, EnterInTheSimpleListStartsIt) {
    MarkBeeAndSelectCow();
    Do("key", "Form1.WIthoutDoubles", "Enter");
    EXPECT_THAT(Started(), HasSubstr("Bee"));
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 2);
}

TEST_F(MarkedRow, EnterInTheResultsStartsIt) {
    FindBeeAndSelectCow();
    Do("key", "Form1.SuchErgList", "Enter");
    EXPECT_THAT(Started(), HasSubstr("Bee"));
}

TEST_F(MarkedRow, DoubleClickOnTheNameStartsIt) {
    MarkBeeAndSelectCow();
    Do("dblclick", "Form1.Current_ProgramNameFull");
    EXPECT_THAT(Started(), HasSubstr("Bee"));
    FindBeeAndSelectCow();
    Do("dblclick", "Form1.Current_ProgramNameFull");
    EXPECT_THAT(Started(), HasSubstr("Bee"));
}

TEST_F(MarkedRow, ButtonsStoreIt) {
    MarkBeeAndSelectCow();
    Do("click", "Form1.AddToFavorit_Global");
    EXPECT_EQ(GlobalFavourite(), "Bee (1991)(Maker)");
    MarkBeeAndSelectCow();
    Do("click", "Form1.AddToFavorit");
    EXPECT_THAT(Favourite(), HasSubstr("Bee"));
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Favorite add: Bee (1991)(Maker)");
}

TEST_F(MarkedRow, ButtonsStoreTheMarkedHit) {
    FindBeeAndSelectCow();
    Do("click", "Form1.AddToFavorit_Global");
    EXPECT_EQ(GlobalFavourite(), "Bee (1991)(Maker)");
    FindBeeAndSelectCow();
    Do("click", "Form1.AddToFavorit");
    EXPECT_THAT(Favourite(), HasSubstr("Bee"));
}

TEST_F(MarkedRow, FavouriteInFrontIsTheOneThatCounts) {
    tree.Write(own, "[Favoriten]\r\nFav0_Name=Bee\r\nFav0_FullPath=" + Path(bee) + "\r\n");
    for (const bool name : {false, true}) {
        Start();
        SelectCow();
        Do("click", "Form1.Label1");
        if (name) {
            Do("dblclick", "Form1.Current_ProgramNameFull");
            EXPECT_THAT(Started(), HasSubstr("Bee"));
        } else {
            Do("click", "Form1.AddToFavorit_Global");
            EXPECT_EQ(GlobalFavourite(), "Bee (1991)(Maker)");
        }
    }
}

TEST_F(MarkedRow, ItsClickFillsTheDrives) {
    MarkBeeAndSelectCow();
    EXPECT_EQ(Get("DiskSlots")[0], tree.Path("Roms/Alpha/" + cow));
    Do("key", "Form1.WIthoutDoubles", "Enter");
    EXPECT_EQ(Get("DiskSlots")[0], tree.Path("Roms/Alpha/" + bee));
}

TEST_F(MarkedRow, AnotherDiskOfItsGameStaysAndSoDoTheDrives) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 0);
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 1);
    const Json drives = Get("DiskSlots");
    EXPECT_EQ(drives[1], tree.Path("Roms/Alpha/" + ant2));
    Do("click", "Form1.Label2");
    Do("key", "Form1.WIthoutDoubles", "Enter");
    EXPECT_THAT(Started(), HasSubstr("Disk 2 of 2"));
    EXPECT_EQ(Get("DiskSlots"), drives);
}

TEST_F(MarkedRow, FavouriteInStepLeavesTheDrivesAlone) {
    tree.Write(own, "[Favoriten]\r\nFav0_Name=Ant\r\nFav0_FullPath=" + Path(ant2) + "\r\n");
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 1);
    Do("set", "Form1.Check_Dfx(4).Value", 1);
    Do("click", "Form1.Label1");
    Do("key", "Form1.FavoritenListe", "Enter");
    EXPECT_THAT(Started(), HasSubstr("Disk 2 of 2"));
    EXPECT_EQ(Get("Check_Dfx(4).Value"), 1);
}

TEST_F(MarkedRow, WhoseGameHasGoneIsNotStartedNorIsAnother) {
    for (const char* way : {"Enter", "dblclick", "name"}) {
        MarkBeeAndLoseIt();
        if (way == std::string("Enter")) {
            Do("key", "Form1.WIthoutDoubles", "Enter");
        } else if (way == std::string("dblclick")) {
            Do("dblclick", "Form1.WIthoutDoubles", 1);
        } else {
            Do("dblclick", "Form1.Current_ProgramNameFull");
        }
        EXPECT_EQ(Started(), "") << way;
        ExpectToldAboutBee();
        EXPECT_TRUE(Visible("WIthoutDoubles"));
        WriteGames();
    }
}

TEST_F(MarkedRow, WhoseGameHasGoneIsNotStored) {
    MarkBeeAndLoseIt();
    Do("click", "Form1.AddToFavorit");
    ExpectToldAboutBee();
    EXPECT_THAT(Text("MyCaptionLabel.Caption"), ::testing::Not(HasSubstr("Favorite")));
    Do("click", "Form1.AddToFavorit_Global");
    ExpectToldAboutBee();
    EXPECT_EQ(Favourite(), "");
    EXPECT_EQ(GlobalFavourite(), "");
    EXPECT_EQ(Get("Focus"), "Form1.WIthoutDoubles");
}

TEST_F(MarkedRow, HitWhoseGameHasGoneStartsAndStoresNothing) {
    MarkBeeAndLoseIt();
    Do("type", "Form1.SearchDblsTxt", "bee");
    Do("key", "Form1.SearchDblsTxt", "Enter");
    Do("key", "Form1.SuchErgList", "Enter");
    ExpectToldAboutBee();
    Do("dblclick", "Form1.SuchErgList", 0);
    ExpectToldAboutBee();
    Do("click", "Form1.AddToFavorit");
    ExpectToldAboutBee();
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Favourite(), "");
}

TEST_F(MarkedRow, TextWithinAnotherNameTakesTheFirstThatContainsIt) {
    tree.WriteCache("Alpha", {{Path(ant1), "Giant Bee"}, {Path(bee), "Bee"}});
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 0);
    Do("key", "Form1.WIthoutDoubles", "Enter");
    EXPECT_THAT(Started(), HasSubstr("Ant"));
    EXPECT_TRUE(Do("boxes")["value"].empty());
}

TEST_F(MarkedRow, WithNoneEnterAndTheButtonsDoNothing) {
    Start();
    Do("click", "Form1.LoadBtn");
    EXPECT_EQ(Get("UAE_Short.ListIndex"), -1);
    Do("key", "Form1.UAE_Short", "Enter");
    EXPECT_EQ(Started(), "");
    EXPECT_TRUE(Do("boxes")["value"].empty());
    EXPECT_TRUE(Visible("UAE_Short"));
    Do("call", "AddToFavorit_Click");
    Do("call", "AddToFavorit_Global_Click");
    EXPECT_EQ(Do("beeps")["value"], 2);
    EXPECT_EQ(Favourite(), "");
    EXPECT_EQ(GlobalFavourite(), "");
    EXPECT_THAT(Text("MyCaptionLabel.Caption"), ::testing::Not(HasSubstr("avorite")));
}

TEST_F(MarkedRow, NameOverTheOpenChoiceStartsNothing) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("focus", "Form1.EmuListbox");
    Do("select", "Form1.EmulatorLongListbox", 1);
    Do("dblclick", "Form1.Current_ProgramNameFull");
    EXPECT_EQ(Started(), "");
    EXPECT_TRUE(Do("boxes")["value"].empty());
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
}

TEST_F(MarkedRow, NameOverTheHitsOfAllStartsNothing) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("set", "Form1.SearchDblsTxt.Text", "cat");
    Do("key", "Form1.SearchDblsTxt", "Ctrl+Enter");
    EXPECT_EQ(Get("GlobalSearchList.ListIndex"), 0);
    Do("dblclick", "Form1.Current_ProgramNameFull");
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_TRUE(Visible("GlobalSearchList"));
}

TEST_F(MarkedRow, NameStartsNoSecondGameWhileOneRuns) {
    Start();
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("key", "Form1.WIthoutDoubles", "Enter");
    EXPECT_THAT(Started(), HasSubstr("Bee"));
    if (Visible("Current_ProgramNameFull")) Do("dblclick", "Form1.Current_ProgramNameFull");
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    if (Visible("Current_ProgramNameFull")) Do("dblclick", "Form1.Current_ProgramNameFull");
    EXPECT_EQ(Started(), "");
}

}  // namespace
}  // namespace kivu::scenarios
