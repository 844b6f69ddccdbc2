#include "forms/user_input.h"
#include "scenarios/all_search.h"
#include "wiring/routines.h"

namespace kivu::scenarios {
namespace {

// A cache of so many games that events run several times within it.
class LongSearch : public AllSearchScenario {
 protected:
    LongSearch() {
        std::string cache;
        for (int i = 100000; i < 140000; ++i) {
            const std::string name = "Long " + std::to_string(i) + "-(1985)";
            cache += "/Roms/" + name + ".adf\r\n" + name + "\r\n";
        }
        tree.Write("Config/Gamma/Kivu_Cache.txt", cache);
        prepare = [](driver::Session& session) {
            session.Host().clock.perLook = std::chrono::milliseconds(40);
        };
    }
};

TEST_F(LongSearch, StopsAboveThirtyTwoThousandHits) {
    Start();
    SearchAll("long");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 32001);
    EXPECT_EQ(Get("Label4.Caption"), " Globale Suche: 32001 (Abbr.)" + backing);
}

TEST_F(LongSearch, ThirtyTwoThousandHitsAreMarkedAsManyToo) {
    std::string cache;
    for (int i = 100000; i < 132000; ++i)
        cache += "Title " + std::to_string(i) + "-(1985)\r\n";
    tree.Write("Config/Gamma/Kivu_Cache.txt", cache);
    Start();
    SearchAll("title");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 32000);
    EXPECT_EQ(Get("Label4.Caption"), " Globale Suche: 32000 (Abbr.)" + backing);
    SearchAll("title 131998");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 1);
    EXPECT_EQ(Get("Label4.Caption"), " Globale Suche: 1" + backing);
}

TEST_F(LongSearch, LettersTypedInTheHitsWaitForTheEnd) {
    Start();
    int turns = 0;
    Host().events.onEvents = [&] {
        if (Form().SearchDblsTxt.Enabled()) return;
        ++turns;
        Form().GlobalSearchList.SetFocus();
        forms::UserInput(Form()).Stroke(forms::KeyOf('x'));
        EXPECT_EQ(Form().SearchDblsTxt.Text(), "Searching: 99-");
    };
    Do("set", "Form1.SearchDblsTxt.Text", "99-");
    Call("SearchAllBtn_Click");
    Host().events.onEvents = {};
    EXPECT_GT(turns, 5);
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "99-");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 400);
}

TEST_F(LongSearch, CountersMoveWhileItRuns) {
    Start();
    std::vector<std::string> captions, texts;
    Host().events.onEvents = [&] {
        captions.push_back(Form().Label4.Caption());
        texts.push_back(Form().SearchDblsTxt.Text());
        EXPECT_EQ(Form().SearchDblsTxt.Enabled(), texts.back() == "99-");
    };
    Do("set", "Form1.SearchDblsTxt.Text", "99-");
    Call("SearchAllBtn_Click");
    Host().events.onEvents = {};
    EXPECT_EQ(texts.back(), "Searching: 99-");
    EXPECT_GT(captions.size(), 10U);
    EXPECT_NE(std::find(captions.begin(), captions.end(), "Gamma: (0/10)"), captions.end());
    EXPECT_EQ(captions.back(), "Gamma: (400/80000)");
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 400);
}

TEST_F(LongSearch, NothingElseOfLengthStartsMeanwhile) {
    Start();
    int turns = 0;
    Host().events.onEvents = [&] {
        if (Form().SearchDblsTxt.Enabled()) return;
        ++turns;
        const int rows = Form().GlobalSearchList.ListCount();
        session->Routines().globalSearch.SearchAllBtn_Click();
        Form().GlobalSearchList.DoubleClick();
        session->Routines().emulatorSwitch.SelectEmulator(false);
        session->Routines().gameLists.LoadBtn_Click();
        EXPECT_EQ(Form().GlobalSearchList.ListCount(), rows);
        EXPECT_TRUE(Form().GlobalSearchList.Visible());
    };
    Do("set", "Form1.SearchDblsTxt.Text", "99-");
    Call("SearchAllBtn_Click");
    Host().events.onEvents = {};
    EXPECT_GT(turns, 5);
    EXPECT_EQ(Get("GlobalSearchList.ListCount"), 400);
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 3);
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "99-");
}

TEST_F(LongSearch, AUserWhoTurnsToAnotherListEndsTheSearch) {
    Start();
    int turns = 0;
    Host().events.onEvents = [&] {
        if (Form().SearchDblsTxt.Enabled() || ++turns != 4) return;
        Form().Label2.Click();
    };
    Do("set", "Form1.SearchDblsTxt.Text", "99-");
    Do("focus", "Form1.SearchDblsTxt");
    Call("SearchAllBtn_Click");
    Host().events.onEvents = {};
    EXPECT_EQ(turns, 4);
    EXPECT_LT(Form().GlobalSearchList.ListCount(), 400);
    EXPECT_FALSE(Visible("GlobalSearchList"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_FALSE(Visible("SuchErgList"));
    EXPECT_FALSE(Visible("LoadingBtn"));
    EXPECT_TRUE(Visible("SearchDblsTxt"));
    EXPECT_EQ(Get("SearchDblsTxt.Enabled"), true);
    EXPECT_EQ(Get("SearchDblsTxt.Text"), "99-");
    EXPECT_EQ(Get("ListMode"), "2");
    EXPECT_EQ(Get("Focus"), "Form1.WIthoutDoubles");
}

TEST_F(LongSearch, ACacheThatVanishesMeanwhileIsNoTrouble) {
    Start();
    Host().events.onEvents = [&] { std::filesystem::remove_all(tree.Path("Config")); };
    Do("set", "Form1.SearchDblsTxt.Text", "ant");
    Call("SearchAllBtn_Click");
    Host().events.onEvents = {};
    EXPECT_EQ(Get("SearchDblsTxt.Enabled"), true);
    EXPECT_TRUE(Visible("GlobalSearchList"));
}

}  // namespace
}  // namespace kivu::scenarios
