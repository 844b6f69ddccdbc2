#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

using Tabs = LoadedScenario;

TEST_F(Tabs, EachTabPutsItsListInFrontAndGivesItTheFocus) {
    Start();
    Do("click", "Form1.Label3");
    EXPECT_EQ(Get("ListMode"), "3");
    EXPECT_TRUE(Visible("UAE_Short"));
    EXPECT_FALSE(Visible("WIthoutDoubles"));
    EXPECT_EQ(Get("Focus"), "Form1.UAE_Short");
    EXPECT_EQ(Get("JoystickFocus"), 3);
    Do("click", "Form1.Label1");
    EXPECT_EQ(Get("ListMode"), "1");
    EXPECT_TRUE(Visible("FavoritenListe"));
    EXPECT_EQ(Get("JoystickFocus"), 1);
    Do("click", "Form1.Label2");
    EXPECT_EQ(Get("ListMode"), "2");
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_FALSE(Visible("UAE_Short"));
    EXPECT_EQ(Get("JoystickFocus"), 2);
}

TEST_F(Tabs, ArrowKeysTurnThemInARing) {
    Start();
    Do("click", "Form1.Label2");
    Do("key", "Form1", "Right");
    EXPECT_EQ(Get("ListMode"), "3");
    EXPECT_TRUE(Visible("UAE_Short"));
    Do("key", "Form1", "Left");
    EXPECT_EQ(Get("ListMode"), "2");
    Do("key", "Form1", "Left");
    EXPECT_EQ(Get("ListMode"), "1");
    EXPECT_EQ(Get("Focus"), "Form1.FavoritenListe");
    Do("key", "Form1", "Right");
    EXPECT_EQ(Get("ListMode"), "2");
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_FALSE(Visible("FavoritenListe"));
}

TEST_F(Tabs, ArrowsStayInTheSearchBoxWhileItHoldsText) {
    Start();
    Do("click", "Form1.Label2");
    Do("set", "Form1.ListMode", "7");
    Do("set", "Form1.SearchDblsTxt.Text", "ant");
    Do("key", "Form1", "Right");
    EXPECT_EQ(Get("ListMode"), "7");
    Do("set", "Form1.SearchDblsTxt.Text", "");
    Do("set", "Form1.ListMode", "7");
    Do("key", "Form1", "Right");
    EXPECT_EQ(Get("ListMode"), "3");
}

TEST_F(Tabs, FourthTabShowsFromTheCompleteListOn) {
    Start();
    Do("click", "Form1.Label2");
    EXPECT_FALSE(Visible("Label4"));
    Do("click", "Form1.Label3");
    EXPECT_TRUE(Visible("Label4"));
    Do("click", "Form1.Label4");
    EXPECT_EQ(Get("ListMode"), "4");
    EXPECT_TRUE(Visible("SuchErgList"));
    for (const char* tab : {"Label1", "Label2", "Label3", "Label4"})
        EXPECT_TRUE(Visible(tab)) << tab;
}

TEST_F(Tabs, StandInARowRightOfTheDropDown) {
    Start();
    Do("click", "Form1.Label3");
    int left = Get("EmuListbox.Left").get<int>() + Get("EmuListbox.Width").get<int>() + 200;
    for (const std::string tab : {"Label1", "Label2", "Label3", "Label4"}) {
        EXPECT_EQ(Get(tab + ".Left"), left) << tab;
        left += Get(tab + ".Width").get<int>() + 200;
    }
}

TEST_F(Tabs, HaveRoomForTheirWordsBesideTheLargestFontInASmallWindow) {
    Start();
    Do("resize", "Form1", 12000, 9000);
    Do("set", "Form1.FontSizeCombo.ListIndex", 64);
    // The drop-down is as wide as its font asks for, and shown as wide as the lists.
    EXPECT_EQ(Get("EmuListbox.Width"), 220 * 52);
    EXPECT_EQ(Get("EmuListbox.ShownWidth"), Get("FavoritenListe.Width"));
    const int end = Get("EmuListbox.Left").get<int>() + Get("EmuListbox.ShownWidth").get<int>();
    for (const forms::Label* tab : {&Form().Label1, &Form().Label2, &Form().Label3}) {
        Do("click", "Form1." + tab->Name());
        EXPECT_GT(Form().Label1.Left(), end);
        // The one in front says its word, if not its count.
        const std::string words = tab->Caption().substr(1, tab->Caption().find(" (") - 1);
        EXPECT_GE(tab->Width(), tab->WidthOf(words)) << words;
        EXPECT_LE(Form().Label3.Right(), Form().Width()) << words;
    }
    // In a wide window it is shown as it is.
    Do("resize", "Form1", 28800, 16200);
    EXPECT_EQ(Get("EmuListbox.ShownWidth"), 220 * 52);
    Do("resize", "Form1", 12000, 9000);
    Do("set", "Form1.FontSizeCombo.ListIndex", 16);
    EXPECT_EQ(Get("EmuListbox.ShownWidth"), 220 * 16);
}

TEST_F(Tabs, ClickInTheSimpleListSelectsTheFirstImageOfTheGame) {
    Start();
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 2);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 2);
    Do("select", "Form1.WIthoutDoubles", 0);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 0);
}

TEST_F(Tabs, NameThatIsPartOfAnEarlierOneFindsTheEarlierGame) {
    tree.WriteCache("Alpha", {{"/Roms/a.adf", "Super Ant"}, {"/Roms/b.adf", "ANT"}});
    Start();
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 0);
}

TEST_F(Tabs, ClickInTheCompleteListSelectsTheSamePath) {
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 1);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 1);
    EXPECT_EQ(Get("Current_ProgramNameFull.Visible"), true);
}

TEST_F(Tabs, LetterInAGameListStartsASearch) {
    Start();
    for (const char* tab : {"Form1.Label2", "Form1.Label3"}) {
        Do("click", tab);
        Do("key", "Form1", "A");
        EXPECT_EQ(Get("Focus"), "Form1.SearchDblsTxt") << tab;
        EXPECT_EQ(Get("SearchDblsTxt.Text").get<std::string>().size(), 1U) << tab;
    }
}

TEST_F(Tabs, ListsLieExactlyOverOneAnother) {
    Start();
    Do("resize", "Form1", 20000, 14000);
    for (const char* member : {".Left", ".Top", ".Width", ".Height"}) {
        const Json measure = Get(std::string("FavoritenListe") + member);
        for (const char* list :
             {"WIthoutDoubles", "UAE_Short", "SuchErgList", "UAE_FULL", "EmulatorLongListbox"}) {
            EXPECT_EQ(Get(std::string(list) + member), measure) << list << member;
        }
    }
}

}  // namespace
}  // namespace kivu::scenarios
