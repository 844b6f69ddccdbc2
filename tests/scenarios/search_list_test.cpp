#include "scenarios/list_search.h"

namespace kivu::scenarios {
namespace {

TEST_F(ListSearchScenario, TheFirstLetterClearsAndTheSecondFillsTheList) {
    Start();
    Type("a");
    EXPECT_EQ(Get("SearchAllBtn.Enabled"), false);
    EXPECT_EQ(Hits(), Json::array());
    EXPECT_TRUE(Visible("SuchErgList"));
    EXPECT_EQ(Get("Label4.Caption"), " Search results (0) ");
    Type("n");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "an");
    EXPECT_EQ(Get("SearchAllBtn.Enabled"), true);
    EXPECT_EQ(Get("SearchAllBtn.BackColor"), "#FFFFFF");
    EXPECT_EQ(Hits(), Json({"Ant (1990)(Maker)", "Giant Ant (1991)(Other)"}));
    EXPECT_EQ(Get("Label4.Caption"), " Search results (2) ");
    Do("key", "Form1.SearchDblsTxt", "Backspace");
    EXPECT_EQ(Hits(), Json::array());
    EXPECT_EQ(Get("SearchAllBtn.Enabled"), false);
    EXPECT_EQ(Get("Label4.Caption"), " Search results (0) ");
}

TEST_F(ListSearchScenario, TheFirstHitIsSelectedInTheSimpleList) {
    Start();
    Type("an");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 1);
    // By its place there, and not by that among the sorted results.
    Do("set", "Form1.SearchDblsTxt.Text", "(199");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 0);
    EXPECT_EQ(Get("SuchErgList.List")[0], "Ant (1990)(Maker)");
    EXPECT_EQ(Get("SuchErgList.ListIndex"), -1);
}

TEST_F(ListSearchScenario, WordsStandInAnyOrderAndCase) {
    Start();
    Type("maker BEE");
    EXPECT_EQ(Hits(), Json({"Bee (1991)(Maker)"}));
    Do("set", "Form1.SearchDblsTxt.Text", "1991  ant");
    EXPECT_EQ(Hits(), Json({"Giant Ant (1991)(Other)"}));
    Do("set", "Form1.SearchDblsTxt.Text", "JÄGER");
    EXPECT_EQ(Hits(), Json({"Der Jäger (1990)(Maker)"}));
    Do("set", "Form1.SearchDblsTxt.Text", "*ant");
    EXPECT_EQ(Hits(), Json::array());
}

TEST_F(ListSearchScenario, TheBoxInFrontIsModeSevenAndItsListModeFours) {
    Start();
    Do("focus", "Form1.SearchDblsTxt");
    EXPECT_EQ(Get("ListMode"), "7");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "");
    EXPECT_TRUE(Visible("SuchErgList"));
    EXPECT_TRUE(Visible("Label4"));
    EXPECT_FALSE(Visible("WIthoutDoubles"));
    EXPECT_EQ(Get("SearchDblsTxt.BackColor"), "#FFFFFF");
    EXPECT_EQ(Get("Current_ProgramNameFull.FontSize"),
              Get("EmulatorLongListbox.FontSize").get<double>() + 4);
    Do("focus", "Form1.SuchErgList");
    EXPECT_EQ(Get("ListMode"), "4");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "Search here..");
    EXPECT_EQ(Get("SearchDblsTxt.BackColor"), Get("SuchErgList.BackColor"));
    EXPECT_EQ(Get("SearchDblsTxt.ForeColor"), Get("SuchErgList.ForeColor"));
}

TEST_F(ListSearchScenario, TheIdleTextIsGermanOnAGermanSystem) {
    options.language = "German (Germany)";
    Start();
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "Suche..");
    Type("bee");
    EXPECT_EQ(Get("Label4.Caption"), " Suchergebnisse (1) ");
    Do("click", "Form1.SuchErg");
    EXPECT_EQ(Get("Label4.Caption"), " Suchergebnisse (1) ");
    Do("set", "Form1.SearchDblsTxt.Text", "  ");
    Do("focus", "Form1.SearchDblsTxt");
    Do("focus", "Form1.SuchErgList");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "Suche..");
}

TEST_F(ListSearchScenario, AnIdleTextTypedByHandDoesNothing) {
    Start();
    Type("an");
    for (const char* idle : {"Suche..", "Search here.."}) {
        Do("set", "Form1.SearchDblsTxt.Text", idle);
        EXPECT_EQ(Get("SuchErgList.ListCount"), 2);
        EXPECT_EQ(Get("Label4.Caption"), " Search results (2) ");
    }
}

TEST_F(ListSearchScenario, F3FindsFromTheRowBehindTheSelectedOne) {
    Start();
    Type("199");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 0);
    Do("key", "Form1.SearchDblsTxt", "F3");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
    EXPECT_EQ(Get("SuchErgList.ListCount"), 4);
    Do("key", "Form1.SearchDblsTxt", "Shift+F3");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
    for (int row = 2; row < 5; ++row) {
        Do("key", "Form1.SearchDblsTxt", "F3");
        EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), row);
    }
    EXPECT_EQ(Get("SuchErgList.ListCount"), 1);
    Do("key", "Form1.SearchDblsTxt", "F3");
    EXPECT_EQ(Get("SuchErgList.ListCount"), 0);
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 4);
}

TEST_F(ListSearchScenario, F3OverAnEmptyTextDoesNothing) {
    Start();
    Type("an");
    Do("set", "Form1.SearchDblsTxt.Text", "");
    Do("set", "Form1.WIthoutDoubles.ListIndex", 2);
    Do("key", "Form1.SearchDblsTxt", "F3");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 2);
    EXPECT_EQ(Get("SuchErgList.ListCount"), 0);
}

TEST_F(ListSearchScenario, ArrowsGoOnIntoTheResults) {
    Start();
    Type("199");
    Do("key", "Form1.SearchDblsTxt", "Up");
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
    Do("key", "Form1.SearchDblsTxt", "Down");
    EXPECT_EQ(Get("Focus"), "Form1.SuchErgList");
    EXPECT_EQ(Get("SuchErgList.ListIndex"), 0);
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "199");
    Do("key", "Form1.SuchErgList", "Down");
    EXPECT_EQ(Get("SuchErgList.ListIndex"), 1);
    Do("key", "Form1.SearchDblsTxt", "Down");
    EXPECT_EQ(Get("SuchErgList.ListIndex"), 2);
    Do("key", "Form1.SearchDblsTxt", "Up");
    EXPECT_EQ(Get("SuchErgList.ListIndex"), 1);
    EXPECT_EQ(Get("Focus"), "Form1.SuchErgList");
    Do("set", "Form1.SuchErgList.ListIndex", 4);
    Do("key", "Form1.SearchDblsTxt", "Down");
    EXPECT_EQ(Get("SuchErgList.ListIndex"), 4);
}

TEST_F(ListSearchScenario, EnterGoesToTheFirstResultAndEnterThereStartsIt) {
    tree.AddEmulator("Alpha", {{"EmulatorPath", "/Emu/alpha"},
                               {"WinUAE_UseMasterConfig", "0"},
                               {"EmulatorParameterAddDiskPath", "1"}});
    tree.Write("Emu/alpha", "#!/bin/sh\n");
    tree.Write("Roms/2 Ant.adf", "x");
    Start();
    Type("maker");
    Do("key", "Form1.SearchDblsTxt", "Enter");
    EXPECT_EQ(Get("Focus"), "Form1.SuchErgList");
    EXPECT_EQ(Get("SuchErgList.ListIndex"), 0);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 1);
    EXPECT_TRUE(Visible("AddToFavorit"));
    EXPECT_TRUE(Visible("AddToFavorit_Global"));
    EXPECT_EQ(Do("runs")["value"].size(), 0U);
    Do("key", "Form1.SuchErgList", "Enter");
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
}

TEST_F(ListSearchScenario, TheFirstResultIsMeantWhileTheBoxIsInFront) {
    Start();
    Type("ant");
    EXPECT_EQ(Get("SuchErgList.ListIndex"), -1);
    EXPECT_EQ(Get("SuchErgList.MeantRow"), 0);
    Do("key", "Form1.SearchDblsTxt", "Down");
    EXPECT_EQ(Get("SuchErgList.ListIndex"), 0);
    EXPECT_EQ(Get("SuchErgList.MeantRow"), -1);
    Do("click", "Form1.SearchDblsTxt");
    EXPECT_EQ(Get("SuchErgList.MeantRow"), 0);
    Do("click", "Form1.Label2");
    EXPECT_EQ(Get("SuchErgList.MeantRow"), -1);
    Type("nothing of this name");
    EXPECT_EQ(Get("SuchErgList.MeantRow"), -1);
}

TEST_F(ListSearchScenario, TheSearchTakesThePlaceOfTheFavourites) {
    Start();
    Do("set", "Form1.FavoritenListe.Left", 777);
    Do("set", "Form1.FavoritenListe.Width", 4444);
    Do("set", "Form1.SuchErgList.Visible", false);
    Do("set", "Form1.FavoritenListeGlobal.Visible", true);
    Do("set", "Form1.SearchDblsTxt.Text", "a");
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_TRUE(Visible("SuchErgList"));
    for (const char* measure : {"Left", "Top", "Width", "Height"}) {
        EXPECT_EQ(Get(std::string("SuchErgList.") + measure),
                  Get(std::string("FavoritenListe.") + measure));
    }
}

TEST_F(ListSearchScenario, TypingInTheMiddleKeepsTheCaretThere) {
    Start();
    Type("at");
    Do("key", "Form1.SearchDblsTxt", "Left");
    Do("key", "Form1.SearchDblsTxt", "n");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "ant");
    EXPECT_EQ(Form().SearchDblsTxt.SelStart(), 2);
    EXPECT_EQ(Get("SuchErgList.ListCount"), 2);
}

TEST_F(ListSearchScenario, BlanksAroundOneCharacterAreNoSearch) {
    Start();
    Type("an");
    Do("set", "Form1.SearchDblsTxt.Text", "  a  ");
    EXPECT_EQ(Get("SuchErgList.ListCount"), 0);
    EXPECT_EQ(Get("SearchAllBtn.Enabled"), false);
    Do("set", "Form1.SearchDblsTxt.Text", "ä");
    EXPECT_EQ(Get("SearchAllBtn.Enabled"), false);
    Do("set", "Form1.SearchDblsTxt.Text", "jä");
    EXPECT_EQ(Get("SuchErgList.ListCount"), 1);
}

TEST_F(ListSearchScenario, F3LeavesTheCountOfTheTypedText) {
    Start();
    Type("199");
    Do("key", "Form1.SearchDblsTxt", "F3");
    EXPECT_EQ(Get("SuchErgList.ListCount"), 4);
    EXPECT_EQ(Get("Label4.Caption"), " Search results (5) ");
}

TEST_F(ListSearchScenario, F3OverTheEmulatorsSearchesThemAll) {
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("key", "Form1.EmuListbox", "a");
    Type("nt");
    Do("key", "Form1.SearchDblsTxt", "F3");
    EXPECT_TRUE(Visible("GlobalSearchList"));
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 4);
}

TEST_F(ListSearchScenario, ARowThatIsNoGameSelectsNone) {
    Start();
    Type("an");
    Form().SuchErgList.AddItem("Unknown");
    Do("select", "Form1.SuchErgList", 2);
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 1);
    EXPECT_TRUE(Visible("AddToFavorit"));
    EXPECT_TRUE(Visible("AddToFavorit_Global"));
}

TEST_F(ListSearchScenario, AClickOnAResultSelectsItsGame) {
    Start();
    Type("199");
    Do("select", "Form1.SuchErgList", 3);
    EXPECT_EQ(Get("SuchErgList.List")[3], "Giant Ant (1991)(Other)");
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 2);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 2);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 2);
}

TEST_F(ListSearchScenario, AClickOnThePictureBringsTheResultsUp) {
    Start();
    Type("an");
    Do("click", "Form1.Label2");
    EXPECT_FALSE(Visible("SuchErgList"));
    Do("set", "Form1.FavoritenListe.FontSize", 21);
    Do("set", "Form1.Label1.FontSize", 19);
    Do("click", "Form1.SuchErg");
    EXPECT_TRUE(Visible("SuchErgList"));
    EXPECT_EQ(Get("Focus"), "Form1.SuchErgList");
    EXPECT_EQ(Get("WIthoutDoubles.FontSize"), 21);
    EXPECT_EQ(Get("SuchErgList.FontSize"), 21);
    EXPECT_EQ(Get("Label2.FontSize"), 19);
    EXPECT_EQ(Get("Label4.Caption"), " Search results: (2) ");
    EXPECT_EQ(Get("ListMode"), "4");
}

TEST_F(ListSearchScenario, AnEmulatorWithoutGamesHasNoResults) {
    tree.WriteProgramProfile({{"LastEmulator", "Void"}});
    Start();
    Type("an");
    EXPECT_EQ(Get("SuchErgList.ListCount"), 0);
    EXPECT_EQ(Get("Label4.Caption"), " Search results (0) ");
    Do("key", "Form1.SearchDblsTxt", "Enter");
    Do("key", "Form1.SuchErgList", "Enter");
    EXPECT_EQ(Do("runs")["value"].size(), 0U);
}

TEST_F(ListSearchScenario, TheTabComesUpWithTheFirstSearch) {
    Start();
    EXPECT_FALSE(Visible("Label4"));
    Do("set", "Form1.SearchDblsTxt.Text", "an");
    EXPECT_TRUE(Visible("Label4"));
    EXPECT_GE(Get("Label4.Left"), Get("Label3.Left"));
}

TEST_F(ListSearchScenario, TheTabStaysInANarrowWindow) {
    Start();
    const auto inside = [this] {
        int left = Form().EmuListbox.Right();
        for (const forms::Label* tab :
             {&Form().Label1, &Form().Label2, &Form().Label3, &Form().Label4}) {
            if (tab->Left() != left + 200) return false;
            left = tab->Right();
        }
        return left <= Form().Width();
    };
    Type("an");
    const Json whole = Get("Label4.Width");
    EXPECT_TRUE(inside());
    EXPECT_EQ(Get("Label1.ToolTipText"), "");
    const Json first = Get("Label1.Width");
    Do("resize", "Form1", 10500, 9000);
    EXPECT_TRUE(inside());
    EXPECT_EQ(Get("Label4.Width"), whole);
    EXPECT_LT(Get("Label1.Width"), first);
    EXPECT_EQ(Get("Label1.ToolTipText"), "Favorites (0)");
    Type("t g");
    EXPECT_TRUE(inside());
    Do("click", "Form1.Label3");
    EXPECT_TRUE(inside());
    EXPECT_LT(Get("Label4.Width"), whole);
    Do("resize", "Form1", 20000, 9000);
    EXPECT_TRUE(inside());
    EXPECT_EQ(Get("Label1.Width"), first);
    EXPECT_EQ(Get("Label1.ToolTipText"), "");
}

TEST_F(ListSearchScenario, ATabClosesTheEmulatorsUnderTheBox) {
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("key", "Form1.EmuListbox", "a");
    ASSERT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
    Do("click", "Form1.Label2");
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_EQ(Get("Focus"), "Form1.WIthoutDoubles");
    EXPECT_EQ(Get("ListMode"), "2");
}

TEST_F(ListSearchScenario, AChangeOfEmulatorPutsTheResultsAway) {
    Start();
    Type("an");
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_EQ(Get("SuchErgList.ListCount"), 0);
    EXPECT_FALSE(Visible("Label4"));
    EXPECT_EQ(Get("Label4.Caption"), " Suchergebnisse (0) ");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "an");
}

TEST_F(ListSearchScenario, EveryLengthOfTheSearchTextIsSafe) {
    Start();
    Do("set", "Form1.SearchDblsTxt.Text", std::string(100000, 'a'));
    EXPECT_EQ(Get("SuchErgList.ListCount"), 0);
    Do("set", "Form1.SearchDblsTxt.Text", std::string(2000, ' ') + "an");
    EXPECT_EQ(Get("SuchErgList.ListCount"), 2);
    std::string words;
    for (int i = 0; i < 5000; ++i)
        words += "a n ";
    Do("set", "Form1.SearchDblsTxt.Text", words);
    EXPECT_EQ(Get("SuchErgList.ListCount"), 2);
}

}  // namespace
}  // namespace kivu::scenarios
