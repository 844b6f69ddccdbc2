#include "favourites/favoriten_events.h"

#include "favourites_testing.h"

namespace kivu::favourites {
namespace {

using platform::Answer;

class FavoritenEventsTest : public ::testing::Test {
 protected:
    FavoritenEventsTest() {
        disk.AddDirectory("/k/Config/Amiga");
        room.Games({{"/k/G/Apidya.adf", "Apidya"},
                    {"/k/G/Turrican.adf", "Turrican"},
                    {"/k/G/Zool.adf", "Zool"}});
        room.form.onPreviewKeyDown = nullptr;
        room.form.FavoritenListe.onDblClick = [this] { room.events.FavoritenListe_DblClick(); };
        room.form.FavoritenListe.onMouseDown = [this](const forms::Mouse& mouse) {
            room.events.FavoritenListe_MouseDown(mouse);
        };
        room.form.FavoritenListe.onKeyDown = [this](forms::Key& key) {
            room.events.FavoritenListe_KeyDown(key);
        };
        room.form.FavoritenListe.onKeyPress = [this](forms::Character& character) {
            room.events.FavoritenListe_KeyPress(character);
        };
        room.form.DeLFav.onClick = [this] { room.events.DeLFav_Click(); };
    }

    void Add(const std::string& name, const std::string& path) {
        room.store.AddFavoritEntry(name, path, 0, false);
        room.store.SaveFavoriten();
        room.store.LoadFavoriten();
    }
    std::string Stored() const { return disk.BytesOf(room.form.FavoritenIni); }
    const std::vector<testing::ShownBox>& Boxes() const { return room.host.dialogs.shown; }

    testing::MemoryFileSystem disk;
    Room room{disk};
};

TEST_F(FavoritenEventsTest, ClickSelectsTheGameAndOffersTheOtherButtons) {
    Add("Zool", "/k/G/Zool.adf");
    room.form.AddToFavorit.SetVisible(true);
    for (forms::CheckBox& box : room.form.Check_Dfx)
        box.SetValue(1);
    room.Select(0);
    EXPECT_EQ(room.form.UAE_Short.ListIndex(), 2);
    EXPECT_EQ(room.form.UAE_FULL.ListIndex(), 2);
    EXPECT_EQ(room.form.Check_Dfx[0].Value(), 1);
    EXPECT_EQ(room.form.Check_Dfx[0].ToolTipText(), "Zool.adf");
    for (std::size_t drive = 1; drive < 5; ++drive)
        EXPECT_EQ(room.form.Check_Dfx[drive].Value(), 0);
    EXPECT_TRUE(room.similar.empty());
    EXPECT_FALSE(room.form.AddToFavorit.Visible());
    EXPECT_TRUE(room.form.AddToFavorit_Global.Visible());
    EXPECT_TRUE(room.form.DeLFav.Visible());
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(FavoritenEventsTest, ClickFillsTheDrivesWhileTheirPanelIsOnShow) {
    Add("Turrican", "/k/G/Turrican.adf");
    room.form.SettingsSubPicture.SetVisible(true);
    room.Select(0);
    EXPECT_EQ(room.similar, (std::vector<std::vector<int>>{{1, 4, 14, 2}}));
}

TEST_F(FavoritenEventsTest, GameThatMovedIsFoundByItsFileName) {
    Add("Turrican", "/old/Turrican.adf");
    room.Select(0);
    EXPECT_EQ(room.form.UAE_Short.ListIndex(), 1);
    EXPECT_EQ(room.form.UAE_FULL.ListIndex(), 1);
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(FavoritenEventsTest, GameOfTheNameGoesBeforeOneThatOnlyContainsIt) {
    room.form.UAE_FULL.AddItem("/k/G/Atomic Zool.adf");
    room.form.UAE_Short.Clear();
    for (const char* name : {"Apidya", "Atomic Zool", "Turrican", "Zool"})
        room.form.UAE_Short.AddItem(name);
    // By its path, and by its file name alone once it has moved.
    for (const char* path : {"/k/G/Zool.adf", "/old/Zool.adf"}) {
        room.store.ClearFavoriten();
        room.store.AddFavoritEntry("Zool", path, 0, true);
        room.form.UAE_Short.SetListIndex(0);
        room.Select(0);
        EXPECT_EQ(room.form.UAE_FULL.ListIndex(), 3) << path;
        EXPECT_EQ(room.form.UAE_Short.ListIndex(), 3) << path;
    }
}

TEST_F(FavoritenEventsTest, NameThatOnlyStandsWithinOthersTakesTheFirstOfThem) {
    room.form.UAE_FULL.AddItem("/k/G/Atomic Zool.adf");
    Add("Zoo", "/old/ool.adf");
    room.Select(0);
    EXPECT_EQ(room.form.UAE_FULL.ListIndex(), 1);
    EXPECT_EQ(room.form.UAE_Short.ListIndex(), 1);
}

TEST_F(FavoritenEventsTest, OfTwoFilesOfOneNameTheFavouritesOwnIsSelected) {
    room.form.UAE_FULL.AddItem("/k/A/Zool.adf");
    room.form.UAE_Short.AddItem("Zool");
    Add("Zool", "/k/G/Zool.adf");
    room.Select(0);
    EXPECT_EQ(room.form.UAE_FULL.SelectedText(), "/k/G/Zool.adf");
    EXPECT_EQ(room.form.UAE_Short.ListIndex(), room.form.UAE_FULL.ListIndex());
}

TEST_F(FavoritenEventsTest, MissingGameIsAskedAboutInEnglish) {
    Add("Gone", "/k/G/Gone.adf");
    room.form.UAE_Short.SetListIndex(1);
    room.host.dialogs.answers = {Answer::No};
    room.Select(0);
    ASSERT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Boxes()[0].title, "Favorite not found - Repair?");
    EXPECT_EQ(Boxes()[0].text,
              "Rom/Image - File not found!\rGone\rDo you want to try to repair the favorites?");
    EXPECT_EQ(Boxes()[0].buttons, platform::Buttons::YesNo);
    EXPECT_EQ(room.form.UAE_Short.ListIndex(), 1);
    // It can be removed all the same.
    EXPECT_TRUE(room.form.DeLFav.Visible());
    EXPECT_EQ(room.Names(), Texts{"Gone"});
}

TEST_F(FavoritenEventsTest, MissingGameIsAskedAboutInGermanAndRepairedOnYes) {
    room.form.CurrentLanguage = 1;
    Add("Gone", "/k/G/Gone.adf");
    room.host.dialogs.answers = {Answer::Yes};
    room.Select(0);
    ASSERT_EQ(Boxes().size(), 2U);
    EXPECT_EQ(Boxes()[0].title, "Nicht gefunden - Reparieren");
    EXPECT_EQ(Boxes()[0].text,
              "Datei wurde nicht gefunden!\rGone\rSollen die Favoriten repariert werden?");
    EXPECT_EQ(Boxes()[1].title, "Reparatur - Ergebnis:");
    EXPECT_TRUE(room.store.Entries().empty());
    EXPECT_FALSE(room.form.DeLFav.Visible());
}

TEST_F(FavoritenEventsTest, NewerClickDuringTheSearchWins) {
    Add("Apidya", "/k/G/Apidya.adf");
    Add("Zool", "/k/G/Zool.adf");
    room.host.events.onEvents = [this] { room.form.FavoritenListe.ClickRow(0); };
    room.Select(1);
    EXPECT_EQ(room.form.UAE_Short.ListIndex(), 0);
    EXPECT_EQ(room.form.UAE_FULL.ListIndex(), 0);
}

TEST_F(FavoritenEventsTest, ListChangedDuringTheSearchDoesNoHarm) {
    Add("Zool", "/k/G/Zool.adf");
    room.host.events.onEvents = [this] {
        room.store.ClearFavoriten();
        room.form.UAE_FULL.Clear();
    };
    room.host.clock.MoveOn(std::chrono::hours(1));
    room.Select(0);
    EXPECT_TRUE(room.store.Entries().empty());
}

TEST_F(FavoritenEventsTest, DoubleClickAndEnterStartTheGame) {
    Add("Zool", "/k/G/Zool.adf");
    room.hands.DoubleClick(room.form.FavoritenListe, 0);
    EXPECT_EQ(room.launches, Texts{"/k/G/Zool.adf"});
    // Another list has been used meanwhile; Enter starts the favourite that is highlighted.
    room.form.UAE_Short.SetListIndex(0);
    room.form.FavoritenListe.SetFocus();
    room.hands.Stroke({forms::keys::enter, 0});
    EXPECT_EQ(room.launches, (Texts{"/k/G/Zool.adf", "/k/G/Zool.adf"}));
}

TEST_F(FavoritenEventsTest, MissingGameStartsNoOther) {
    Add("Gone", "/k/G/Gone.adf");
    room.form.UAE_Short.SetListIndex(1);
    room.hands.DoubleClick(room.form.FavoritenListe, 0);
    room.hands.Stroke({forms::keys::enter, 0});
    EXPECT_TRUE(room.launches.empty());
    EXPECT_EQ(Boxes().size(), 2U);
}

TEST_F(FavoritenEventsTest, EnterWithoutASelectionStartsNothing) {
    Add("Zool", "/k/G/Zool.adf");
    room.form.FavoritenListe.SetFocus();
    room.hands.KeyPress({forms::keys::enter});
    EXPECT_TRUE(room.launches.empty());
}

TEST_F(FavoritenEventsTest, LettersGoOnToTheSearchAndBlanksDoNot) {
    room.form.FavoritenListe.SetFocus();
    for (const char32_t code : {U't', U' ', U'Z'})
        room.hands.KeyPress({code});
    EXPECT_EQ(room.letters, U"tZ");
}

TEST_F(FavoritenEventsTest, RightClickRenamesRowRecordAndKey) {
    Add("Zool", "/k/G/Zool.adf");
    room.host.dialogs.inputs = {"Zool, the ninja"};
    room.hands.RightClick(room.form.FavoritenListe, 0);
    ASSERT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Boxes()[0].title, "Change alias");
    EXPECT_EQ(Boxes()[0].text, "Please enter a new title for: \r\rZool");
    EXPECT_EQ(Boxes()[0].initial, "Zool");
    EXPECT_EQ(room.form.FavoritenListe.List(0), "Zool, the ninja");
    EXPECT_EQ(room.Names(), Texts{"Zool, the ninja"});
    EXPECT_EQ(Stored(),
              "[Favoriten]\r\nFav0_Name=Zool, the ninja\r\nFav0_FullPath=/G/Zool.adf\r\n");
}

TEST_F(FavoritenEventsTest, RenameToNothingOrTheSameWritesNothing) {
    Add("Zool", "/k/G/Zool.adf");
    disk.changes.clear();
    for (const char* input : {"", "Zool", "   ", "\"\"", "''", "\n"}) {
        room.host.dialogs.inputs = {input};
        room.hands.RightClick(room.form.FavoritenListe, 0);
        EXPECT_EQ(room.form.FavoritenListe.List(0), "Zool");
    }
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(FavoritenEventsTest, OnlyTheRightButtonOnASelectedRowRenames) {
    Add("Zool", "/k/G/Zool.adf");
    room.hands.RightClick(room.form.FavoritenListe);
    room.hands.Click(room.form.FavoritenListe, 0);
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(FavoritenEventsTest, ListThatChangedBehindTheInputBoxIsNotRenamed) {
    Add("Zool", "/k/G/Zool.adf");
    room.host.dialogs.inputs = {"New"};
    room.host.dialogs.onShow = [this] { room.store.ClearFavoriten(); };
    room.hands.RightClick(room.form.FavoritenListe, 0);
    EXPECT_NE(Stored().find("Fav0_Name=Zool"), std::string::npos);
}

TEST_F(FavoritenEventsTest, DeleteKeyAsksAndRemovesOnYes) {
    Add("Apidya", "/k/G/Apidya.adf");
    room.Select(0);
    room.form.FavoritenListe.SetFocus();
    room.host.dialogs.answers = {Answer::No, Answer::Yes};
    room.hands.Stroke({forms::keys::del, 0});
    EXPECT_EQ(room.Names(), Texts{"Apidya"});
    room.form.CurrentLanguage = 1;
    room.hands.Stroke({forms::keys::del, 0});
    EXPECT_TRUE(room.store.Entries().empty());
    ASSERT_EQ(Boxes().size(), 2U);
    EXPECT_EQ(Boxes()[0].text, "Remove from Favorite-List:\r\rApidya?");
    EXPECT_EQ(Boxes()[1].text, "Aus Favoriten entfernen:\r\rApidya?");
    EXPECT_EQ(Boxes()[1].buttons, platform::Buttons::YesNo);
    EXPECT_TRUE(room.form.EmuListbox.Visible());
}

TEST_F(FavoritenEventsTest, DeleteKeyWithoutASelectionDoesNotAsk) {
    Add("Apidya", "/k/G/Apidya.adf");
    room.form.FavoritenListe.SetFocus();
    room.hands.Stroke({forms::keys::del, 0});
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(FavoritenEventsTest, RemoveButtonTakesTheSelectedFavourite) {
    for (const char* name : {"Apidya", "Turrican", "Zool"})
        Add(name, std::string("/k/G/") + name + ".adf");
    room.Select(1);
    room.hands.Click(room.form.DeLFav);
    EXPECT_EQ(room.form.FavoritenListe.Rows(), (Texts{"Apidya", "Zool"}));
    EXPECT_FALSE(room.form.DeLFav.Visible());
    EXPECT_TRUE(room.form.EmuListbox.Visible());
    EXPECT_TRUE(room.form.FavoritenListe.HasFocus());
}

TEST_F(FavoritenEventsTest, RemoveButtonWithTheListHiddenOnlyBeeps) {
    Add("Zool", "/k/G/Zool.adf");
    room.Select(0);
    room.form.FavoritenListe.SetVisible(false);
    room.events.DeLFav_Click();
    EXPECT_EQ(room.host.beeper.count, 1);
    EXPECT_FALSE(room.form.EmuListbox.Visible());
    EXPECT_EQ(room.Names(), Texts{"Zool"});
}

TEST_F(FavoritenEventsTest, RemoveButtonBelongsToTheGlobalListWhileThatIsOnShow) {
    Add("Zool", "/k/G/Zool.adf");
    room.Select(0);
    room.global.AddGlobalFavorit("G", "Amiga", "/g");
    room.global.LoadGlobalFavoriten();
    room.form.FavoritenListeGlobal.SetVisible(true);
    room.form.FavoritenListeGlobal.SetListIndex(0);
    room.events.DeLFav_Click();
    EXPECT_EQ(room.form.FavoritenListeGlobal.ListCount(), 0);
    EXPECT_EQ(room.form.Label1.Caption(), "Globale Favoriten: 0  ");
    EXPECT_EQ(room.Names(), Texts{"Zool"});
    EXPECT_TRUE(room.form.DeLFav.Visible());
    EXPECT_TRUE(room.form.EmuListbox.Visible());
}

TEST_F(FavoritenEventsTest, AddButtonPutsTheGameInItsSortedPlace) {
    Add("Zool", "/k/G/Zool.adf");
    room.form.UAE_Short.SetListIndex(0);
    room.events.AddToFavorit_Click();
    EXPECT_EQ(room.form.MyCaptionLabel.Caption(), "Favorite add: Apidya");
    EXPECT_EQ(room.form.FavoritenListe.Rows(), (Texts{"Apidya", "Zool"}));
    EXPECT_EQ(Stored(),
              "[Favoriten]\r\nFav0_Name=Apidya\r\nFav0_FullPath=/G/Apidya.adf\r\n"
              "Fav1_Name=Zool\r\nFav1_FullPath=/G/Zool.adf\r\nFav2_Name=\r\nFav2_FullPath=\r\n");
    room.form.CurrentLanguage = 1;
    room.form.UAE_Short.SetListIndex(1);
    room.events.AddToFavorit_Click();
    EXPECT_EQ(room.form.MyCaptionLabel.Caption(), "Neuer Favorit: Turrican");
    EXPECT_EQ(room.Names(), (Texts{"Apidya", "Turrican", "Zool"}));
}

TEST_F(FavoritenEventsTest, GameIsAFavouriteOnce) {
    Add("My name for it", "/k/G/Zool.adf");
    room.form.UAE_Short.SetListIndex(2);
    room.events.AddToFavorit_Click();
    EXPECT_EQ(room.Names(), Texts{"My name for it"});
}

TEST_F(FavoritenEventsTest, AddButtonWithoutAGameAddsNothing) {
    room.events.AddToFavorit_Click();
    EXPECT_TRUE(room.store.Entries().empty());
}

TEST_F(FavoritenEventsTest, AddingFromAnotherListLeavesItsGameSelected) {
    Add("Zool", "/k/G/Zool.adf");
    room.Select(0);
    room.form.FavoritenListe.SetVisible(false);
    room.form.UAE_Short.SetListIndex(0);
    room.form.AddToFavorit.SetVisible(true);
    room.events.AddToFavorit_Click();
    EXPECT_EQ(room.form.UAE_Short.ListIndex(), 0);
    EXPECT_TRUE(room.form.AddToFavorit.Visible());
}

TEST_F(FavoritenEventsTest, FullDiskKeepsTheStoreAndTheListInStep) {
    Add("Zool", "/k/G/Zool.adf");
    const std::string before = Stored();
    disk.SetFreeSpace(0);
    room.form.UAE_Short.SetListIndex(0);
    room.events.AddToFavorit_Click();
    EXPECT_EQ(Stored(), before);
    EXPECT_EQ(room.Names(), Texts{"Zool"});
}

}  // namespace
}  // namespace kivu::favourites
