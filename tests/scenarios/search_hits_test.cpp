#include "scenarios/all_search.h"
#include "wiring/routines.h"

namespace kivu::scenarios {
namespace {

// The rows that a search of all emulators has found, and where they lead.
using HitsOfAll = AllSearchScenario;

TEST_F(HitsOfAll, AClickShowsTheHitAndItsEmulatorOnce) {
    Start();
    std::vector<int> shown;
    session->Routines().globalSearch.hooks.ShowEmulatorPreview = [&](int row) {
        shown.push_back(row);
    };
    SearchAll("199");
    EXPECT_TRUE(Visible("Current_ProgramNameFull"));
    EXPECT_EQ(Get("Current_ProgramNameFull.Caption"), "Alpha:\r  Ant (1990)");
    Do("select", "Form1.GlobalSearchList", 1);
    EXPECT_EQ(shown, std::vector<int>{0});
    Do("select", "Form1.GlobalSearchList", 2);
    EXPECT_EQ(Get("Current_ProgramNameFull.Caption"), "Beta:\r  Cat (1992)");
    EXPECT_EQ(shown, (std::vector<int>{0, 1}));
}

TEST_F(HitsOfAll, AHitLeadsToItsEmulatorsResults) {
    Start();
    SearchAll("ant");
    Do("dblclick", "Form1.GlobalSearchList", 1);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 1);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_FALSE(Visible("GlobalSearchList"));
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "ant");
    EXPECT_EQ(Get("SuchErgList.List"), Json({"Giant (1993)(Maker)"}));
    EXPECT_TRUE(Visible("SuchErgList"));
    EXPECT_EQ(Get("SuchErgList.ListIndex"), 0);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 1);
    EXPECT_EQ(Get("Focus"), "Form1.SuchErgList");
    EXPECT_EQ(Get("ListMode"), "4");
    EXPECT_EQ(Get("Label4.Caption"), " Search results (1) ");
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "LastEmulator"), "Beta");
}

TEST_F(HitsOfAll, AHitLeadsToTheResultsOfTheWholeSearchsText) {
    Start();
    SearchAll("199");
    Do("set", "Form1.SearchDblsTxt.Text", "giant");
    Do("key", "Form1.SearchDblsTxt", "Down");
    Do("key", "Form1.GlobalSearchList", "Enter");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "199");
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_EQ(Get("SuchErgList.ListCount"), 2);
}

TEST_F(HitsOfAll, AHitOfTheLoadedEmulatorLeadsToItsResultsToo) {
    Start();
    SearchAll("ant");
    Do("key", "Form1.GlobalSearchList", "Enter");
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Get("SuchErgList.List"), Json({"Ant (1990)(Maker)"}));
    EXPECT_EQ(Get("Focus"), "Form1.SuchErgList");
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_FALSE(Visible("LoadingBtn"));
}

TEST_F(HitsOfAll, ARowWithoutAnEmulatorLeadsNowhere) {
    Start();
    SearchAll("ant");
    Form().GlobalSearchList.AddItem("Zz no colon");
    Do("dblclick", "Form1.GlobalSearchList", 2);
    EXPECT_TRUE(Visible("GlobalSearchList"));
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "ant");
}

TEST_F(HitsOfAll, ASecondEmulatorOfTheSameNameRunsTheHitAgain) {
    Start();
    Form().EmuListbox.AddItem("Beta");
    Form().EmulatorLongListbox.AddItem("Beta");
    SearchAll("giant");
    Do("key", "Form1.GlobalSearchList", "Enter");
    EXPECT_EQ(Get("CurrentEmuIndex"), 2);
    // The text went with the first one.
    EXPECT_EQ(Get("SuchErgList.ListCount"), 0);
}

TEST_F(HitsOfAll, EnterWithoutAHitDoesNothing) {
    Start();
    SearchAll("nowhere");
    EXPECT_EQ(Get("Label4.Caption"), " Globale Suche: 0" + backing);
    Do("key", "Form1.GlobalSearchList", "Enter");
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_TRUE(Visible("GlobalSearchList"));
}

TEST_F(HitsOfAll, LettersTypedInTheHitsNarrowThem) {
    Start();
    SearchAll("199");
    ASSERT_EQ(Get("Focus"), "Form1.GlobalSearchList");
    Do("key", "Form1.GlobalSearchList", "c");
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "c");
    EXPECT_EQ(Form().SearchDblsTxt.SelStart(), 1);
    Do("key", "Form1.SearchDblsTxt", "a");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "ca");
    EXPECT_EQ(Hits(), Json({Padded("Beta:  Cat (1992)", 10, 21)}));
    Do("key", "Form1.SearchDblsTxt", "Down");
    EXPECT_EQ(Get("Focus"), "Form1.GlobalSearchList");
    EXPECT_EQ(Get("GlobalSearchList.ListIndex"), 0);
    Do("key", "Form1.GlobalSearchList", "-");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "ca");
}

TEST_F(HitsOfAll, TheBoxNarrowsTheHits) {
    Start();
    SearchAll("199");
    ASSERT_EQ(Get("GlobalSearchList.ListCount"), 4);
    EXPECT_EQ(Get("ListMode"), "4");
    Do("focus", "Form1.SearchDblsTxt");
    EXPECT_EQ(Get("ListMode"), "4");
    EXPECT_TRUE(Visible("GlobalSearchList"));
    Do("set", "Form1.SearchDblsTxt.Text", "BETA 199");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 2);
    EXPECT_EQ(Get("Label4.Caption"), " Search results (0) ");
    EXPECT_EQ(Get("SearchAllBtn.BackColor"), "#C0FFC0");
    Do("set", "Form1.SearchDblsTxt.Text", "BETA 1992");
    EXPECT_EQ(Hits(), Json({Padded("Beta:  Cat (1992)", 10, 21)}));
    // What is gone comes back only with a new search.
    Do("set", "Form1.SearchDblsTxt.Text", "BETA");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 1);
    Do("set", "Form1.SearchDblsTxt.Text", "x");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
    Do("set", "Form1.SearchDblsTxt.Text", "beta");
    Do("key", "Form1.SearchDblsTxt", "Enter");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
    EXPECT_EQ(Get("Focus"), "Form1.GlobalSearchList");
}

TEST_F(HitsOfAll, ASearchFromTheOpenChoiceClosesIt) {
    Start();
    const Json colour = Get("EmuListbox.BackColor");
    Do("focus", "Form1.EmuListbox");
    Do("select", "Form1.EmulatorLongListbox", 1);
    Do("key", "Form1.EmulatorLongListbox", "a");
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
    EXPECT_GE(Get("Label1.Left"), Form().EmuListbox.Right());
    EXPECT_LE(Form().Label4.Right(), Form().Width());
    Do("type", "Form1.SearchDblsTxt", "nt");
    Do("key", "Form1.SearchDblsTxt", "Enter");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 2);
    EXPECT_EQ(Get("ListMode"), "4");
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("EmuListbox.BackColor"), colour);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 0);
    EXPECT_EQ(Get("EmuListbox.Text"), "Alpha");
    Do("click", "Form1.Label2");
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 0);
}

TEST_F(HitsOfAll, ArrowsMoveInTheTextOverTheHits) {
    Start();
    SearchAll("199");
    Do("focus", "Form1.SearchDblsTxt");
    Do("key", "Form1.SearchDblsTxt", "Left");
    EXPECT_TRUE(Visible("GlobalSearchList"));
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
    Do("set", "Form1.SearchDblsTxt.Text", "");
    Do("key", "Form1.SearchDblsTxt", "Left");
    EXPECT_FALSE(Visible("GlobalSearchList"));
}

TEST_F(HitsOfAll, ALongEmulatorNameDoesNotHideTheTitle) {
    const std::string emulator = "TheVeryLongNameOfAnEmulatorThatDoesNotFitIntoItsLabelAtAnySize";
    tree.AddEmulator(emulator);
    tree.WriteCache(emulator, {{"/Roms/Ant (1977)(M).adf", "Ant (1977)(M)"}});
    Start();
    SearchAll("1977");
    EXPECT_TRUE(Visible("Current_ProgramNameFull"));
    EXPECT_NE(Text("Current_ProgramNameFull.Caption").find("Ant"), std::string::npos);
}

TEST_F(HitsOfAll, AnEmptyBoxEmptiesTheHits) {
    Start();
    SearchAll("199");
    Do("set", "Form1.SearchDblsTxt.Text", "");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 0);
    EXPECT_TRUE(Visible("GlobalSearchList"));
}

TEST_F(HitsOfAll, ManyHitsAreNarrowedWithTheSelectedRowKept) {
    ProgramDirectory::Settings images;
    for (int i = 10000; i < 12000; ++i) {
        const std::string name = "Game " + std::to_string(i) + " (1990)";
        images.push_back({"/Roms/" + name + ".adf", name});
    }
    tree.WriteCache("Gamma", images);
    Start();
    SearchAll("gam");
    ASSERT_EQ(Get("GlobalSearchList.ListCount"), 2000);
    Do("set", "Form1.GlobalSearchList.ListIndex", 777);
    Do("set", "Form1.SearchDblsTxt.Text", "777");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 2);
    EXPECT_EQ(Get("GlobalSearchList.ListIndex"), 0);
    Do("set", "Form1.SearchDblsTxt.Text", "11777");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 1);
    EXPECT_EQ(Get("GlobalSearchList.ListIndex"), -1);
}

TEST_F(HitsOfAll, FewHitsAreTakenOutWithTheSelectedRowKept) {
    Start();
    SearchAll("199");
    Do("select", "Form1.GlobalSearchList", 3);
    int clicks = 0;
    Form().GlobalSearchList.onClick = [&] { ++clicks; };
    Do("set", "Form1.SearchDblsTxt.Text", "beta");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 2);
    EXPECT_EQ(Get("GlobalSearchList.ListIndex"), 1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(HitsOfAll, ATabGivesTheWindowBackToTheGames) {
    Start();
    SearchAll("ant");
    Do("click", "Form1.Label4");
    EXPECT_FALSE(Visible("GlobalSearchList"));
    EXPECT_TRUE(Visible("SuchErgList"));
    EXPECT_EQ(Get("Label4.Caption"), " Search results (0) ");
    EXPECT_EQ(Get("SearchAllBtn.BackColor"), "#FFFFFF");
    EXPECT_TRUE(Visible("SettingsSubPicture"));
    SearchAll("bee");
    Do("key", "Form1.GlobalSearchList", "Left");
    EXPECT_FALSE(Visible("GlobalSearchList"));
    EXPECT_NE(Get("Focus"), "Form1.GlobalSearchList");
    EXPECT_FALSE(Visible("LoadingBtn"));
}

TEST_F(HitsOfAll, TheHitsFollowTheWindowsSize) {
    Start();
    SearchAll("ant");
    Do("resize", "Form1", 20000, 12000);
    EXPECT_TRUE(Visible("GlobalSearchList"));
    EXPECT_EQ(Get("GlobalSearchList.Width"), Get("ListWidth"));
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 2);
    EXPECT_EQ(Get("Label4.Caption"), " Globale Suche: 2" + backing);
    EXPECT_EQ(Get("Label4.Left"), Form().EmuListbox.Right() + 200);
}

}  // namespace
}  // namespace kivu::scenarios
