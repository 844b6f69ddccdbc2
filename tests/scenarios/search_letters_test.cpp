#include "scenarios/list_search.h"

namespace kivu::scenarios {
namespace {

TEST_F(ListSearchScenario, ALetterInAGameListGoesToTheBox) {
    Start();
    for (const char* list : {"WIthoutDoubles", "UAE_Short", "SuchErgList"}) {
        const std::string name = std::string("Form1.") + list;
        Do("set", name + ".Visible", true);
        Do("focus", name);
        ASSERT_EQ(Get("Focus"), name);
        Do("key", name, "a");
        EXPECT_EQ(Get("SearchDblsTxt.Text"), "a") << list;
        EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt") << list;
        EXPECT_EQ(Form().SearchDblsTxt.SelStart(), 1) << list;
        Type("nt");
        EXPECT_EQ(Get("SearchDblsTxt.Text"), "ant") << list;
        EXPECT_EQ(Get("SuchErgList.ListCount"), 2) << list;
    }
}

TEST_F(ListSearchScenario, ADigitInAListGoesToTheBoxToo) {
    for (const char* list : {"WIthoutDoubles", "UAE_Short", "SuchErgList", "EmulatorLongListbox"}) {
        Start();
        const std::string name = list;
        if (name == "UAE_Short") Do("click", "Form1.Label3");
        if (name == "SuchErgList") {
            Type("bee");
            Do("key", "Form1.SearchDblsTxt", "Enter");
        }
        if (name == "EmulatorLongListbox") Do("focus", "Form1.EmuListbox");
        Do("key", "Form1." + name, "1");
        EXPECT_EQ(Get("SearchDblsTxt.Text"), "1") << list;
        EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt") << list;
    }
}

TEST_F(ListSearchScenario, ALetterOverTheEmulatorsSearchesThemAllAtEnter) {
    tree.WriteCache("Void", {{"/Roms/x.d64", "Antics (1985)(Maker)"}});
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("focus", "Form1.EmulatorLongListbox");
    Do("key", "Form1.EmulatorLongListbox", "a");
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
    Type("nt");
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "ant");
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("SuchErgList.ListCount"), 0);
    EXPECT_EQ(Get("SearchAllBtn.Enabled"), true);
    Do("key", "Form1.SearchDblsTxt", "Down");
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
    Do("key", "Form1.SearchDblsTxt", "Enter");
    EXPECT_TRUE(Visible("GlobalSearchList"));
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 5);
}

TEST_F(ListSearchScenario, AnIdleTextIsNoSearchOfAllAndKeepsTheFocusInItsBox) {
    Start();
    Do("focus", "Form1.SearchDblsTxt");
    Do("type", "Form1.SearchDblsTxt", "Suche..");
    Do("click", "Form1.SearchAllBtn");
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
    EXPECT_FALSE(Visible("GlobalSearchList"));
}

TEST_F(ListSearchScenario, TheMagnifierOverTheOpenChoiceClosesIt) {
    Start();
    Type("an");
    Do("click", "Form1.EmuListbox");
    Do("select", "Form1.EmulatorLongListbox", 1);
    Do("click", "Form1.SuchErg");
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_TRUE(Visible("SuchErgList"));
    EXPECT_EQ(Get("EmuListbox.ListIndex"), Get("CurrentEmuIndex"));
}

TEST_F(ListSearchScenario, TheBoxPutsTheGlobalFavouritesAway) {
    Start();
    Type("an");
    Do("click", "Form1.EmuListbox");
    Do("click", "Form1.Label1");
    ASSERT_TRUE(Visible("FavoritenListeGlobal"));
    Do("click", "Form1.SearchDblsTxt");
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_FALSE(Visible("DeLFav"));
    EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt");
}

TEST_F(ListSearchScenario, TheResultsStayHiddenBehindTheOpenChoice) {
    Start();
    Type("an");
    Do("click", "Form1.EmuListbox");
    Do("key", "Form1", "Ctrl+F");
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
    EXPECT_FALSE(Visible("SuchErgList"));
    Do("resize", "Form1", 15000, 11000);
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
    EXPECT_FALSE(Visible("SuchErgList"));
}

}  // namespace
}  // namespace kivu::scenarios
