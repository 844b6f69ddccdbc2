#include "walker/meaning.h"

#include <gtest/gtest.h>

namespace kivu::walker {
namespace {

using Kind = Meaning::Kind;

ListLook Rows(std::vector<std::string> rows, int row = -1) {
    return {std::move(rows), row, true, 11};
}

struct MeaningTest : ::testing::Test {
    MeaningTest() {
        look.dropDown = Rows({"Amiga", "Arcade"}, 1);
        look.loaded = 1;
        look.paths = Rows({"/r/mspacman.zip", "/r/pacman.zip", "/r/zaxxon.zip"});
        At(List::complete) = Rows({"mspacman", "pacman", "zaxxon"});
        At(List::simple) = Rows({"mspacman", "pacman", "gone"}, 1);
        for (ListLook& list : look.lists)
            list.visible = false;
    }
    ListLook& At(List list) { return look.lists[static_cast<std::size_t>(list)]; }
    Meaning Of(List list, int row) const { return MeaningOf(look, stores, list, row); }

    Look look;
    Stores stores;
};

TEST_F(MeaningTest, RowOfTheCompleteListIsItsFile) {
    EXPECT_EQ(Of(List::complete, 1).path, "/r/pacman.zip");
    EXPECT_EQ(Of(List::complete, 1).emulator, "Arcade");
    EXPECT_EQ(Of(List::complete, -1).kind, Kind::none);
    EXPECT_EQ(Of(List::complete, 3).kind, Kind::none);
}

TEST_F(MeaningTest, TitleThatIsPartOfAnEarlierOneTakesTheEarlierGame) {
    EXPECT_EQ(Of(List::simple, 1).path, "/r/mspacman.zip");
    EXPECT_EQ(Of(List::simple, 2).kind, Kind::gone);
}

TEST_F(MeaningTest, SelectedFileOfTheMarkedTitleStays) {
    EXPECT_EQ(MeaningAsSelected(look, stores, List::simple, 1).path, "/r/mspacman.zip");
    At(List::complete).row = look.paths.row = 1;
    EXPECT_EQ(MeaningAsSelected(look, stores, List::simple, 1).path, "/r/pacman.zip");
    At(List::complete).row = look.paths.row = 2;
    EXPECT_EQ(MeaningAsSelected(look, stores, List::simple, 1).path, "/r/mspacman.zip");
}

TEST_F(MeaningTest, WithNothingMarkedInFrontTheSelectedGameCounts) {
    At(List::hits).visible = true;
    EXPECT_EQ(MeaningInFront(look, stores).kind, Kind::none);
    At(List::complete).row = look.paths.row = 2;
    EXPECT_EQ(MeaningInFront(look, stores).path, "/r/zaxxon.zip");
    At(List::globalHits).visible = true;
    At(List::hits).visible = false;
    EXPECT_EQ(MeaningInFront(look, stores).kind, Kind::none);
}

TEST_F(MeaningTest, FavouriteIsItsOwnFileBeforeOneThatContainsIt) {
    At(List::favourites) = Rows({"a", "b", "c"});
    stores.own = {{"a", "/moved/pacman.zip"}, {"b", "/r/lost.zip"}, {"other", "/r/zaxxon.zip"}};
    EXPECT_EQ(Of(List::favourites, 0).path, "/r/pacman.zip");
    EXPECT_EQ(Of(List::favourites, 1).kind, Kind::gone);
    EXPECT_EQ(Of(List::favourites, 2).kind, Kind::untold);
}

TEST_F(MeaningTest, OfGlobalFavouritesWithEqualTextsTheFirstCounts) {
    At(List::globalFavourites) = Rows({"x  :  Amiga", "x  :  Amiga", "x  :  Nobody"});
    stores.global = {{"x", "Amiga", "/one"}, {"x", "Amiga", "/two"}, {"x", "Nobody", "/three"}};
    EXPECT_EQ(Of(List::globalFavourites, 1).path, "/one");
    EXPECT_EQ(Of(List::globalFavourites, 1).emulator, "Amiga");
    EXPECT_EQ(Of(List::globalFavourites, 2).kind, Kind::gone);
}

TEST_F(MeaningTest, ActionsDoWhatTheyShould) {
    At(List::simple).visible = true;
    At(List::globalHits) = Rows({"Amiga:  Ant", "Sold:  Ant"});
    const auto expect = [&](std::initializer_list<Json> command) {
        return Expect(look, stores, Json::array_t(command));
    };
    using Act = Expected::Act;
    EXPECT_EQ(expect({"dblclick", "Form1.UAE_Short", 2}).meant.path, "/r/zaxxon.zip");
    EXPECT_EQ(expect({"select", "Form1.UAE_Short", 2}).act, Act::nothing);
    EXPECT_EQ(expect({"click", "Form1.AddToFavorit"}).act, Act::storeOwn);
    EXPECT_EQ(expect({"click", "Form1.AddToFavorit"}).meant.path, "/r/mspacman.zip");
    EXPECT_EQ(expect({"dblclick", "Form1.GlobalSearchList", 0}).loads, "Amiga");
    EXPECT_EQ(expect({"dblclick", "Form1.GlobalSearchList", 1}).loads, "");
    EXPECT_EQ(expect({"dblclick", "Form1.EmuListbox", 0}).loads, "Amiga");
    look.focus = "EmuListbox";
    EXPECT_EQ(expect({"key", "Form1", "Enter"}).loads, "Arcade");
    look.focus = "WIthoutDoubles";
    EXPECT_EQ(expect({"key", "Form1", "Enter"}).act, Act::start);
    EXPECT_EQ(expect({"key", "Form1", "Space"}).act, Act::nothing);
    look.splash = true;
    EXPECT_EQ(expect({"key", "Form1", "Enter"}).act, Act::nothing);
}

}  // namespace
}  // namespace kivu::walker
