#include "favourites/global_events.h"

#include "favourites_testing.h"

namespace kivu::favourites {
namespace {

class GlobalEventsTest : public ::testing::Test {
 protected:
    GlobalEventsTest() {
        disk.AddDirectory("/k/Config");
        for (const char* name : {"Amiga", "C64", "NES"}) {
            room.form.EmuListbox.AddItem(name);
            room.form.EmulatorLongListbox.AddItem(name);
        }
        room.form.EmuListbox.SetListIndex(0);
        room.form.CurrentEmuIndex = 0;
        room.Games({{"/k/G/Apidya.adf", "Apidya"}, {"/k/G/Zool.adf", "Zool"}});
        room.global.AddGlobalFavorit("Boulder", "C64", "/k/C/Boulder.d64");
        room.global.AddGlobalFavorit("Zool", "Amiga", "/k/G/Zool.adf");
        room.global.AddGlobalFavorit("Lost", "Vectrex", "/k/V/Lost.vec");
        room.global.LoadGlobalFavoriten();
        room.onSelect = [this](bool add) {
            steps.push_back("switch to " + room.form.EmuListbox.SelectedText() +
                            (add ? " and add" : ""));
            room.form.CurrentEmuIndex = room.form.EmuListbox.ListIndex();
        };
        room.form.SetTopmost(true);
        room.form.SearchDblsTxt.onChange = [this] {
            steps.push_back("search " + room.form.SearchDblsTxt.Text());
        };
        forms::ListBox& list = room.form.FavoritenListeGlobal;
        list.SetVisible(true);
        list.onClick = [this] { room.globalEvents.FavoritenListeGlobal_Click(); };
        list.onDblClick = [this] { room.globalEvents.FavoritenListeGlobal_DblClick(); };
        list.onKeyDown = [this](forms::Key& key) {
            room.globalEvents.FavoritenListeGlobal_KeyDown(key);
        };
        list.onKeyPress = [this](forms::Character& character) {
            room.globalEvents.FavoritenListeGlobal_KeyPress(character);
        };
    }

    testing::MemoryFileSystem disk;
    Room room{disk};
    Texts& steps = room.steps;
};

TEST_F(GlobalEventsTest, ClickSetsTheRowOfTheEmulatorAndSwitchesNothing) {
    room.hands.Click(room.form.FavoritenListeGlobal, 0);
    EXPECT_EQ(room.form.EmuListbox.ListIndex(), 1);
    EXPECT_TRUE(steps.empty());
    EXPECT_EQ(room.host.beeper.count, 0);
}

TEST_F(GlobalEventsTest, ClickOnAFavouriteOfTheSameEmulatorChangesNothing) {
    int clicks = 0;
    room.form.EmuListbox.onClick = [&] { ++clicks; };
    room.hands.Click(room.form.FavoritenListeGlobal, 1);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(room.form.EmuListbox.ListIndex(), 0);
}

TEST_F(GlobalEventsTest, ClickWithoutAnEmulatorBeeps) {
    room.hands.Click(room.form.FavoritenListeGlobal, 2);
    EXPECT_EQ(room.host.beeper.count, 1);
    room.form.FavoritenListeGlobal.AddItem("no record");
    room.hands.Click(room.form.FavoritenListeGlobal, 3);
    EXPECT_EQ(room.host.beeper.count, 2);
    EXPECT_EQ(room.form.EmuListbox.ListIndex(), 0);
}

TEST_F(GlobalEventsTest, DoubleClickSwitchesSearchesAndStartsInThisOrder) {
    room.hands.DoubleClick(room.form.FavoritenListeGlobal, 0);
    EXPECT_EQ(steps, (Texts{"switch to C64", "search Boulder", "normal", "box hidden",
                            "start /k/C/Boulder.d64"}));
    EXPECT_TRUE(room.form.EmuListbox.Visible());
    EXPECT_TRUE(room.form.FavoritenListeGlobal.Visible());
    EXPECT_TRUE(room.form.LoadingBtn.Visible());
    EXPECT_FALSE(room.form.SuchErgList.Visible());
}

TEST_F(GlobalEventsTest, EnterActsAsTheDoubleClickAndOtherKeysDoNot) {
    room.form.FavoritenListeGlobal.SetListIndex(1);
    room.form.FavoritenListeGlobal.SetFocus();
    room.hands.KeyPress({U'x'});
    EXPECT_TRUE(steps.empty());
    room.hands.Stroke({forms::keys::enter, 0});
    EXPECT_EQ(steps.back(), "start /k/G/Zool.adf");
}

TEST_F(GlobalEventsTest, SameSearchTextIsSearchedForOnceMore) {
    room.form.SearchDblsTxt.SetText("Zool");
    steps.clear();
    room.hands.DoubleClick(room.form.FavoritenListeGlobal, 1);
    EXPECT_EQ(steps[1], "search Zool");
}

TEST_F(GlobalEventsTest, DoubleClickWithoutARecordOrAnEmulatorStartsNothing) {
    room.form.FavoritenListeGlobal.AddItem("no record");
    room.hands.DoubleClick(room.form.FavoritenListeGlobal, 3);
    room.hands.DoubleClick(room.form.FavoritenListeGlobal, 2);
    EXPECT_TRUE(steps.empty());
}

TEST_F(GlobalEventsTest, SwitchThatDoesNotComeThroughStartsNothing) {
    room.onSelect = [](bool) {};
    room.hands.DoubleClick(room.form.FavoritenListeGlobal, 0);
    EXPECT_TRUE(steps.empty());
    room.form.Busy = true;
    room.hands.DoubleClick(room.form.FavoritenListeGlobal, 1);
    EXPECT_TRUE(steps.empty());
}

TEST_F(GlobalEventsTest, RecordSurvivesALoadDuringTheSwitch) {
    room.onSelect = [this](bool) {
        room.form.CurrentEmuIndex = room.form.EmuListbox.ListIndex();
        disk.Remove(room.form.FavoritenGlobalIni);
        room.global.LoadGlobalFavoriten();
    };
    room.hands.DoubleClick(room.form.FavoritenListeGlobal, 0);
    EXPECT_EQ(steps.back(), "start /k/C/Boulder.d64");
}

TEST_F(GlobalEventsTest, EscapeAndBackspaceLeaveTheChoiceAndAreSwallowed) {
    room.form.FavoritenListeGlobal.SetFocus();
    for (const int code : {forms::keys::escape, forms::keys::back}) {
        steps.clear();
        EXPECT_EQ(room.hands.KeyDown({code, 0}).code, 0);
        EXPECT_EQ(steps, Texts{"leave"});
    }
}

TEST_F(GlobalEventsTest, AddButtonAddsTheSelectedGameWithItsEmulator) {
    room.form.UAE_Short.SetListIndex(0);
    room.form.FavoritenListeGlobal.SetVisible(false);
    room.form.FavoritenListe.SetVisible(false);
    room.form.UAE_Short.SetVisible(true);
    room.form.AddToFavorit_Global.SetVisible(true);
    room.form.AddToFavorit_Global.onClick = [this] {
        room.globalEvents.AddToFavorit_Global_Click();
    };
    const int turns = room.host.events.count;
    room.hands.Click(room.form.AddToFavorit_Global);
    EXPECT_EQ(room.host.events.count, turns + 1);
    EXPECT_EQ(room.form.MyCaptionLabel.Caption(), "Add global Favorite: Apidya");
    EXPECT_EQ(room.host.beeper.count, 1);
    EXPECT_TRUE(room.form.UAE_Short.HasFocus());
    const GlobalFavorit* added = room.global.FindByDisplay("Apidya  :  Amiga");
    ASSERT_TRUE(added);
    EXPECT_EQ(added->FullPath, "/k/G/Apidya.adf");
    room.form.CurrentLanguage = 1;
    room.globalEvents.AddToFavorit_Global_Click();
    EXPECT_EQ(room.form.MyCaptionLabel.Caption(), "Globaler Favorit: Apidya");
    EXPECT_EQ(room.global.Records().size(), 5U);
}

TEST_F(GlobalEventsTest, AddButtonReadsTheListsAfterTheEvents) {
    room.form.UAE_Short.SetListIndex(0);
    room.host.events.onEvents = [this] { room.form.UAE_Short.SetListIndex(1); };
    room.globalEvents.AddToFavorit_Global_Click();
    EXPECT_EQ(room.global.Records().back().Name, "Zool");
}

TEST_F(GlobalEventsTest, AddButtonWithoutAGameAddsNothing) {
    room.globalEvents.AddToFavorit_Global_Click();
    EXPECT_EQ(room.global.Records().size(), 3U);
}

TEST_F(GlobalEventsTest, ClosedChoiceLeavesTheListOfTheEmulator) {
    room.form.EmulatorLongListbox.SetVisible(false);
    EXPECT_FALSE(room.globalEvents.ShowGlobalFavourites());
    EXPECT_TRUE(steps.empty());
}

TEST_F(GlobalEventsTest, OpenChoiceBringsTheGlobalListUp) {
    room.form.EmulatorLongListbox.SetVisible(true);
    room.form.FavoritenListeGlobal.SetVisible(false);
    room.form.FavoritenListeGlobal.Clear();
    EXPECT_TRUE(room.globalEvents.ShowGlobalFavourites());
    EXPECT_TRUE(room.form.FavoritenListeGlobal.Visible());
    EXPECT_TRUE(room.form.FavoritenListeGlobal.HasFocus());
    EXPECT_TRUE(room.form.DeLFav.Visible());
    EXPECT_FALSE(room.form.FavoritenListe.Visible());
    EXPECT_EQ(room.form.Label1.Caption(), "Globale Favoriten: 3  ");
    EXPECT_EQ(room.form.FavoritenListeGlobal.List(0), "Boulder  :  C64");
}

TEST_F(GlobalEventsTest, GlobalListHasTheLettersOfTheOwnOne) {
    room.form.EmulatorLongListbox.SetVisible(true);
    room.form.FavoritenListe.SetFontSize(40);
    EXPECT_TRUE(room.globalEvents.ShowGlobalFavourites());
    EXPECT_EQ(room.form.FavoritenListeGlobal.FontSize(), 40);
}

TEST_F(GlobalEventsTest, FullStoreKeepsWhatItHas) {
    for (int i = 0; i < 1000; ++i)
        room.global.AddGlobalFavorit("G" + std::to_string(i), "C64", "/g");
    ASSERT_EQ(room.global.Records().size(), 1000U);
    const std::string before = disk.BytesOf(room.form.FavoritenGlobalIni);
    room.form.UAE_Short.SetListIndex(0);
    room.globalEvents.AddToFavorit_Global_Click();
    EXPECT_EQ(disk.BytesOf(room.form.FavoritenGlobalIni), before);
    EXPECT_EQ(room.host.beeper.count, 1);
}

TEST_F(GlobalEventsTest, LeavingClosesTheChoiceOnlyWhileTheListIsOnShow) {
    room.form.EmuListbox.SetListIndex(2);
    room.globalEvents.LeaveGlobalFavourites();
    EXPECT_EQ(steps, Texts{"close"});
    EXPECT_EQ(room.form.EmuListbox.ListIndex(), 0);
    EXPECT_FALSE(room.form.FavoritenListeGlobal.Visible());
    room.globalEvents.LeaveGlobalFavourites();
    EXPECT_EQ(steps.size(), 1U);
}

}  // namespace
}  // namespace kivu::favourites
