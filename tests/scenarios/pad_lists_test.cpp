#include "scenarios/pad.h"

namespace kivu::scenarios {
namespace {

// Steps of the pad through the game lists.
class PadLists : public PadScenario {
 protected:
    struct Rows {
        int count, row;
    };
    static constexpr Rows none{0, -1};

    // The lists of the simple, the complete and the favourites' tab.
    void Lay(int focus, Rows simple, Rows complete, Rows favourites) {
        core::Form1& form = Form();
        Fill(form.WIthoutDoubles, simple.count, simple.row);
        Fill(form.UAE_Short, complete.count, complete.row);
        Fill(form.UAE_FULL, complete.count, complete.row);
        Fill(form.FavoritenListe, favourites.count, favourites.row);
        form.JoystickFocus = focus;
    }
    void Act(int action) { Tap(action - 1); }
    void Expect(int simple, int complete, int favourites) {
        EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), simple);
        EXPECT_EQ(Form().UAE_Short.ListIndex(), complete);
        EXPECT_EQ(Form().FavoritenListe.ListIndex(), favourites);
    }
    // Of the three lists, since then.
    void CountClicks() {
        for (forms::ListBox* list :
             {&Form().WIthoutDoubles, &Form().UAE_Short, &Form().FavoritenListe})
            list->onClick = [this, list] { clicked.push_back(list->Name()); };
    }

    std::vector<std::string> clicked;
};

TEST_F(PadLists, TenDownStopsAtTheEnd) {
    Start();
    Lay(2, {250, 95}, none, none);
    Act(5);
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 105);
    Lay(2, {250, 245}, none, none);
    Act(5);
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 249);
    Lay(2, {250, 239}, none, none);
    Act(5);
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 249);
}

TEST_F(PadLists, HundredDownGoesToTheEndFromWithinAHundredRowsOfIt) {
    Start();
    Lay(2, {250, 100}, none, none);
    Act(7);
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 249);
    Lay(2, {250, 20}, none, none);
    Act(7);
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 120);
}

TEST_F(PadLists, StepsUpTakeTheSimpleListToItsTopWhereAnyListIsNearIts) {
    Start();
    Lay(2, {250, 95}, none, none);
    Act(6);
    Expect(0, -1, -1);
    Lay(2, {250, 249}, none, none);
    Act(8);
    Expect(0, -1, -1);
    Lay(2, {250, 95}, {50, 20}, {50, 20});
    Act(6);
    Expect(85, 20, 20);
    Lay(2, {250, 249}, {50, 20}, {250, 200});
    Act(8);
    Expect(149, 20, 200);
    Lay(2, {250, 249}, {50, 9}, {250, 200});
    Act(8);
    Expect(0, 9, 200);
}

TEST_F(PadLists, OtherListsMoveWithoutTheirClick) {
    Start();
    Lay(3, {250, 20}, {250, 95}, none);
    CountClicks();
    Act(6);
    Expect(0, 85, -1);
    EXPECT_EQ(clicked, std::vector<std::string>{"UAE_Short"});
    Lay(3, {250, 200}, {250, 95}, none);
    Act(6);
    Expect(0, 85, -1);
}

TEST_F(PadLists, FewRowsUpInTheCompleteListGoNowhereOrToNone) {
    Start();
    Lay(3, {20, 15}, {250, 5}, none);
    Act(6);
    Expect(0, 5, -1);
    Lay(3, {20, 15}, {250, 9}, none);
    Act(6);
    Expect(0, -1, -1);
}

TEST_F(PadLists, StepThatTakesTheButtonInFocusAwayLeavesTheKeysAList) {
    Start();
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("click", "Form1.Label1");
    Do("click", "Form1.AddToFavorit");
    ASSERT_EQ(Form().Focus(), &Form().AddToFavorit);
    TapStick("y", 65535);
    EXPECT_EQ(Form().Focus(), &Form().FavoritenListe);
}

TEST_F(PadLists, FavouritesStepAlone) {
    Start();
    Lay(1, {250, 50}, {250, 50}, {30, 12});
    CountClicks();
    Act(6);
    Expect(50, 50, 2);
    EXPECT_EQ(clicked, std::vector<std::string>{"FavoritenListe"});
}

TEST_F(PadLists, ClampedFavouritesSelectNoOtherGame) {
    Start();
    Do("click", "Form1.Label2");
    Lay(2, {40, 30}, none, {3, 0});
    ASSERT_TRUE(Visible("AddToFavorit"));
    Act(5);
    EXPECT_EQ(Form().WIthoutDoubles.ListIndex(), 39);
    EXPECT_EQ(Form().FavoritenListe.ListIndex(), 2);
    EXPECT_TRUE(Visible("AddToFavorit"));
    EXPECT_FALSE(Visible("DeLFav"));
}

TEST_F(PadLists, TopLeadsToTheEndAndEndToTheTop) {
    Start();
    for (const int focus : {1, 2, 3}) {
        Lay(focus, {20, 5}, {20, 5}, {20, 5});
        Act(9);
        Expect(focus == 2 ? 19 : 5, focus == 3 ? 19 : 5, focus == 1 ? 19 : 5);
        Act(10);
        Expect(focus == 2 ? 0 : 5, focus == 3 ? 0 : 5, focus == 1 ? 0 : 5);
    }
}

TEST_F(PadLists, HitsTakeNoPartInLongStepsAndTheOthersAreClamped) {
    Start();
    for (const int focus : {4, 5, 0, 6, 7, -1}) {
        Lay(focus, {40, 35}, {40, 35}, {40, 35});
        Fill(Form().SuchErgList, 250, 100);
        Act(5);
        Expect(39, 39, 39);
        Act(9);
        Act(10);
        EXPECT_EQ(Form().SuchErgList.ListIndex(), 100) << focus;
        Expect(39, 39, 39);
    }
}

TEST_F(PadLists, EmptyListsTakeEveryStep) {
    Start();
    Do("boxes");
    for (const int focus : {1, 2, 3, 4}) {
        for (const int action : {1, 5, 6, 7, 8, 9, 10}) {
            Lay(focus, none, none, none);
            Form().SuchErgList.Clear();
            Act(action);
            Expect(-1, -1, -1);
        }
        for (const int place : {0, 65535}) {
            Form().JoystickFocus = focus;
            TapStick("y", place);
            Expect(-1, -1, -1);
        }
    }
    EXPECT_TRUE(Do("boxes")["value"].empty());
}

TEST_F(PadLists, DownAndUpStopAtTheEnds) {
    Start();
    for (const int focus : {1, 2, 3}) {
        Lay(focus, {3, 1}, {3, 1}, {3, 1});
        Push("y", 65535);
        Poll(3);
        Expect(focus == 2 ? 2 : 1, focus == 3 ? 2 : 1, focus == 1 ? 2 : 1);
        Push("y", 0);
        Poll(5);
        Expect(focus == 2 ? 0 : 1, focus == 3 ? 0 : 1, focus == 1 ? 0 : 1);
    }
    Fill(Form().SuchErgList, 3, 1);
    Form().JoystickFocus = 4;
    TapStick("y", 65535);
    EXPECT_EQ(Form().SuchErgList.ListIndex(), 2);
}

// Rows that have been chosen one by one, with their disks.
class PadByHand : public PadLists {
 protected:
    PadByHand() {
        tree.AddEmulator("Alpha", {{"RomPath", "/Roms/Alpha"},
                                   {"SmartRomSelection", "0"},
                                   {"WinUAE_UseMasterConfig", "0"}});
    }
    void StartInCompleteList() {
        Start();
        Do("click", "Form1.Label3");
        Do("select", "Form1.UAE_Short", 0);
        Do("select", "Form1.UAE_Short", 1, "ctrl");
    }
    Json Chosen() { return Get("UAE_Short.Selected"); }
};

TEST_F(PadByHand, StepsLeaveTheChosenRows) {
    StartInCompleteList();
    TapStick("y", 65535);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 2);
    EXPECT_EQ(Chosen(), Json::array({0, 1}));
    Act(10);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 0);
    EXPECT_EQ(Chosen(), Json::array({0, 1}));
    // From another list, too.
    Form().JoystickFocus = 4;
    Act(5);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 2);
    EXPECT_EQ(Chosen(), Json::array({0, 1}));
}

// To no row would be to unmark them all.
TEST_F(PadByHand, TenUpFromTheTenthRowStays) {
    StartInCompleteList();
    Lay(3, {250, 20}, {50, 9}, none);
    Act(6);
    Expect(0, 9, -1);
}

TEST_F(PadByHand, SelectTurnsTheMarkOver) {
    StartInCompleteList();
    Act(1);
    EXPECT_EQ(Chosen(), Json::array({0}));
    Act(1);
    EXPECT_EQ(Chosen(), Json::array({0, 1}));
    EXPECT_EQ(Get("Check_Dfx(1).Value"), 1);
}

// Its own list is that of the favourites, which lies behind the results.
TEST_F(PadByHand, StepsBehindASearchOfferNoRemoval) {
    tree.Write("Config/Alpha/Favoriten.ini",
               ProgramDirectory::Encoded("[Favoriten]\r\nFav0_Name=Bee\r\nFav0_FullPath=" +
                                         tree.Path("Roms/Alpha/Bee (1991)(Maker).adf") + "\r\n"));
    Start();
    EXPECT_TRUE(Visible("FavoritenListe"));
    Do("type", "Form1.SearchDblsTxt", "bee (");
    Act(9);
    EXPECT_FALSE(Visible("FavoritenListe"));
    EXPECT_FALSE(Visible("DeLFav"));
}

TEST_F(PadByHand, SelectTouchesNoMarkWhereTheLauncherChooses) {
    tree.AddEmulator("Alpha", {{"RomPath", "/Roms/Alpha"}, {"SmartRomSelection", "1"}});
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 1);
    const Json before = Chosen();
    Act(1);
    EXPECT_EQ(Chosen(), before);
}

}  // namespace
}  // namespace kivu::scenarios
