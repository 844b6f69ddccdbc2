#include <algorithm>

#include "scenarios/pad.h"

namespace kivu::scenarios {
namespace {

// The lists of all emulators stand over those that the pad walks through otherwise.
class PadAllEmulators : public PadScenario {
 protected:
    void SearchAll(const char* text) {
        Do("click", "Form1.Label2");
        Do("set", "Form1.SearchDblsTxt.Text", text);
        Do("key", "Form1.SearchDblsTxt", "Ctrl+Enter");
        ASSERT_TRUE(Visible("GlobalSearchList"));
    }
    // Over the open choice.
    void ShowFavourites() {
        tree.Write("Config/Favoriten_Global.ini",
                   "[Favoriten_Global]\r\nFav0_Name=\r\nFav0_System=\r\nFav0_FullPath=\r\n" +
                       Favourite(1, "Bee (1991)(Maker)", "Alpha") +
                       Favourite(2, "Cat (1992)(Maker)", "Beta"));
        Start();
        Tap(2);
        Do("click", "Form1.Label1");
        ASSERT_TRUE(Visible("FavoritenListeGlobal"));
    }
    std::string Favourite(int number, const std::string& name, const std::string& system) {
        const std::string key = "Fav" + std::to_string(number);
        return key + "_Name=" + name + "\r\n" + key + "_System=" + system + "\r\n" + key +
               "_FullPath=" + tree.Path("Roms/" + system + "/" + name + ".adf") + "\r\n";
    }
    std::size_t Runs() { return Do("runs")["value"].size(); }
};

TEST_F(PadAllEmulators, StepsAreTheHits) {
    Start();
    SearchAll("199");
    const forms::ListBox& hits = Form().GlobalSearchList;
    ASSERT_GE(hits.ListCount(), 2);
    const int last = hits.ListCount() - 1;
    const int simple = Form().WIthoutDoubles.ListIndex();
    const int found = Form().SuchErgList.ListIndex();
    TapStick("y", 65535);
    EXPECT_EQ(hits.ListIndex(), 1);
    TapStick("y", 0);
    TapStick("y", 0);
    EXPECT_EQ(hits.ListIndex(), 0);
    Tap(8);
    EXPECT_EQ(hits.ListIndex(), last);
    Tap(9);
    EXPECT_EQ(hits.ListIndex(), 0);
    for (const int down : {4, 6}) {
        Tap(down);
        EXPECT_EQ(hits.ListIndex(), std::min(down == 4 ? 10 : 100, last));
        Tap(down + 1);
        EXPECT_EQ(hits.ListIndex(), 0);
    }
    Tap(0);
    EXPECT_TRUE(Visible("GlobalSearchList"));
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), simple);
    EXPECT_EQ(Form().SuchErgList.ListIndex(), found);
}

TEST_F(PadAllEmulators, StartOpensTheHitAndNoHiddenGame) {
    Start();
    SearchAll("Cat");
    ASSERT_EQ(Form().GlobalSearchList.ListIndex(), 0);
    // Held, it does not start what comes to the front either.
    Press({1});
    Poll(3);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_FALSE(Visible("GlobalSearchList"));
    EXPECT_EQ(Runs(), 0U);
    EXPECT_EQ(Get("GameIsRunning"), false);
}

TEST_F(PadAllEmulators, StartWithoutAHitDoesNothing) {
    Start();
    SearchAll("Cat");
    Form().GlobalSearchList.SetListIndexQuietly(-1);
    Tap(1);
    EXPECT_TRUE(Visible("GlobalSearchList"));
    EXPECT_EQ(Runs(), 0U);
    EXPECT_EQ(Get("GameIsRunning"), false);
    Form().GlobalSearchList.Clear();
    for (const int button : {0, 1, 4, 5, 6, 7, 8, 9})
        Tap(button);
    EXPECT_EQ(Runs(), 0U);
}

TEST_F(PadAllEmulators, FavouritesOverTheOpenChoiceAreWalkedThroughAndStarted) {
    ShowFavourites();
    const forms::ListBox& list = Form().FavoritenListeGlobal;
    Tap(8);
    EXPECT_EQ(list.ListIndex(), 1);
    TapStick("y", 0);
    EXPECT_EQ(list.ListIndex(), 0);
    TapStick("y", 65535);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_TRUE(Visible("FavoritenListeGlobal"));
    Tap(1);
    EXPECT_EQ(Runs(), 1U);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_TRUE(Text("CURRENT_PROGRAM_STARTED").starts_with("Cat (1992)(Maker)"));
    EXPECT_EQ(Get("GameIsRunning"), true);
}

TEST_F(PadAllEmulators, FavouriteWhoseFileIsGoneLeavesThePadOn) {
    std::filesystem::remove(testing::PathOf(tree.Path("Roms/Alpha/Bee (1991)(Maker).adf")));
    ShowFavourites();
    Tap(9);
    Tap(1);
    EXPECT_EQ(Runs(), 0U);
    EXPECT_EQ(Get("GameIsRunning"), false);
    Tap(8);
    EXPECT_EQ(Form().FavoritenListeGlobal.ListIndex(), 1);
}

TEST_F(PadAllEmulators, FavouritesAreLeftByTheButtonOfTheChoice) {
    ShowFavourites();
    Tap(2);
    EXPECT_FALSE(Visible("FavoritenListeGlobal"));
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
}

}  // namespace
}  // namespace kivu::scenarios
