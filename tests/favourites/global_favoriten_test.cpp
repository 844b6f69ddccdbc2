#include "favourites/global_favoriten.h"

#include "favourites_testing.h"

namespace kivu::favourites {
namespace {

const std::string header = "[Favoriten_Global]\r\nFav0_Name=\r\nFav0_System=\r\nFav0_FullPath=\r\n";

class GlobalFavoritenTest : public ::testing::Test {
 protected:
    GlobalFavoritenTest() { disk.AddDirectory("/k/Config"); }

    void Store(const std::string& bytes) { disk.AddFile(room.form.FavoritenGlobalIni, bytes); }
    std::string Stored() const { return disk.BytesOf(room.form.FavoritenGlobalIni); }
    static std::string Lines(int number, const std::string& name, const std::string& system,
                             const std::string& path) {
        const std::string key = "Fav" + std::to_string(number);
        return key + "_Name=" + name + "\r\n" + key + "_System=" + system + "\r\n" + key +
               "_FullPath=" + path + "\r\n";
    }
    void ShowHits(int count) {
        for (int i = 0; i < count; ++i)
            room.form.GlobalSearchList.AddItem("hit");
        room.form.GlobalSearchList.SetVisible(true);
    }
    Texts Rows() const { return room.form.FavoritenListeGlobal.Rows(); }

    testing::MemoryFileSystem disk;
    Room room{disk};
};

TEST_F(GlobalFavoritenTest, MissingFileGivesAnEmptyListAndIsNotMade) {
    room.form.FavoritenListeGlobal.AddItem("stale");
    room.global.LoadGlobalFavoriten();
    EXPECT_TRUE(room.global.Records().empty());
    EXPECT_TRUE(Rows().empty());
    EXPECT_EQ(Stored(), "(no file)");
}

TEST_F(GlobalFavoritenTest, EachAdditionWritesHeaderAndAllRecordsAtOnce) {
    room.global.AddGlobalFavorit("Turrican", "Amiga", "/k/Games/T.adf");
    EXPECT_EQ(Stored(), header + Lines(1, "Turrican", "Amiga", "/k/Games/T.adf"));
    room.global.AddGlobalFavorit("Über", "C 64", "/media/Ü=].d64");
    EXPECT_EQ(Stored(), header + Lines(1, "Turrican", "Amiga", "/k/Games/T.adf") +
                            Lines(2, "Über", "C 64", "/media/Ü=].d64"));
    EXPECT_EQ(disk.changes.size(), 2U);
    room.global.LoadGlobalFavoriten();
    EXPECT_EQ(Rows(), (Texts{"Turrican  :  Amiga", "Über  :  C 64"}));
    const GlobalFavorit* record = room.global.FindByDisplay("Über  :  C 64");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->Name, "Über");
    EXPECT_EQ(record->System, "C 64");
    EXPECT_EQ(record->FullPath, "/media/Ü=].d64");
    EXPECT_FALSE(room.global.FindByDisplay(""));
    EXPECT_FALSE(room.global.FindByDisplay("Turrican"));
}

TEST_F(GlobalFavoritenTest, AdditionTakesWhatTheFileHasNow) {
    room.global.AddGlobalFavorit("A", "X", "/a");
    Store(header + Lines(1, "Else", "Y", "/e"));
    room.global.AddGlobalFavorit("B", "X", "/b");
    EXPECT_EQ(Stored(), header + Lines(1, "Else", "Y", "/e") + Lines(2, "B", "X", "/b"));
}

TEST_F(GlobalFavoritenTest, SaveReplacesTheFileAndNumbersAnew) {
    Store("; note\r\n[Favoriten_Global]\r\n" + Lines(0, "A", "X", "/a") + Lines(7, "B", "Y", "/b"));
    room.global.LoadGlobalFavoriten();
    EXPECT_EQ(Rows(), (Texts{"A  :  X", "B  :  Y"}));
    room.global.SaveGlobalFavoriten();
    EXPECT_EQ(Stored(), header + Lines(1, "A", "X", "/a") + Lines(2, "B", "Y", "/b"));
}

TEST_F(GlobalFavoritenTest, IncompleteEntriesAreMissesAndTheFiftyFirstEndsTheRead) {
    // The empty first entry, then 49 incomplete ones: 50 misses are borne, wherever they stand.
    std::string bytes = header;
    for (int i = 1; i <= 49; ++i)
        bytes += Lines(2 * i - 1, "Miss", i % 2 ? "" : "X", i % 2 ? "/m" : "") +
                 Lines(2 * i, "Hit " + std::to_string(i), "X", "/h");
    Store(bytes + Lines(99, "Last", "X", "/l"));
    room.global.LoadGlobalFavoriten();
    EXPECT_EQ(room.global.Records().size(), 50U);
    EXPECT_EQ(Rows().back(), "Last  :  X");
    Store(bytes + Lines(99, "", "X", "/l") + Lines(100, "Beyond", "X", "/b"));
    room.global.LoadGlobalFavoriten();
    EXPECT_EQ(room.global.Records().size(), 49U);
}

TEST_F(GlobalFavoritenTest, NumbersBeyondThousandAreNotReadAndNotAdded) {
    std::string bytes = header;
    for (int i = 1; i <= 1001; ++i)
        bytes += Lines(i, "G" + std::to_string(i), "X", "/g");
    Store(bytes);
    room.global.LoadGlobalFavoriten();
    ASSERT_EQ(room.global.Records().size(), 1000U);
    room.global.AddGlobalFavorit("More", "X", "/m");
    EXPECT_EQ(Stored(), bytes);
}

TEST_F(GlobalFavoritenTest, SearchHitsOnShowKeepTheListUntouched) {
    Store(header + Lines(1, "A", "X", "/a"));
    room.form.FavoritenListeGlobal.AddItem("as it was");
    ShowHits(3);
    room.global.LoadGlobalFavoriten();
    EXPECT_TRUE(room.global.Records().empty());
    EXPECT_EQ(Rows(), Texts{"as it was"});
}

TEST_F(GlobalFavoritenTest, FewHitsOrHiddenOnesDoNot) {
    Store(header + Lines(1, "A", "X", "/a"));
    ShowHits(2);
    room.global.LoadGlobalFavoriten();
    EXPECT_EQ(Rows(), Texts{"A  :  X"});
    ShowHits(5);
    room.form.GlobalSearchList.SetVisible(false);
    room.global.LoadGlobalFavoriten();
    EXPECT_EQ(Rows(), Texts{"A  :  X"});
}

TEST_F(GlobalFavoritenTest, AdditionDuringSearchHitsDoesNotWipeTheStore) {
    Store(header + Lines(1, "A", "X", "/a"));
    ShowHits(3);
    room.global.AddGlobalFavorit("B", "Y", "/b");
    EXPECT_EQ(Stored(), header + Lines(1, "A", "X", "/a") + Lines(2, "B", "Y", "/b"));
}

TEST_F(GlobalFavoritenTest, ArrayThatWasNotReadIsNotSaved) {
    const std::string bytes = header + Lines(1, "A", "X", "/a");
    Store(bytes);
    room.global.SaveGlobalFavoriten();
    EXPECT_EQ(Stored(), bytes);
    ShowHits(3);
    room.global.LoadGlobalFavoriten();
    room.global.SaveGlobalFavoriten();
    EXPECT_EQ(Stored(), bytes);
    room.form.GlobalSearchList.SetVisible(false);
    disk.SetUnreadable(room.form.FavoritenGlobalIni);
    room.global.AddGlobalFavorit("B", "Y", "/b");
    EXPECT_EQ(Stored(), bytes);
}

TEST_F(GlobalFavoritenTest, SaveWithoutAFileWritesTheHeaderAlone) {
    room.global.SaveGlobalFavoriten();
    EXPECT_EQ(Stored(), header);
}

TEST_F(GlobalFavoritenTest, RemovalTakesRecordAndRow) {
    Store(header + Lines(1, "A", "X", "/a") + Lines(2, "B", "X", "/b") + Lines(3, "C", "X", "/c"));
    room.global.LoadGlobalFavoriten();
    room.form.FavoritenListeGlobal.SetListIndex(1);
    room.global.RemoveGlobalFavorit();
    EXPECT_EQ(Stored(), header + Lines(1, "A", "X", "/a") + Lines(2, "C", "X", "/c"));
    EXPECT_EQ(Rows(), (Texts{"A  :  X", "C  :  X"}));
    EXPECT_TRUE(room.global.Records()[1].Display.empty());
    EXPECT_TRUE(room.global.Records()[1].FullPath.empty());
}

TEST_F(GlobalFavoritenTest, OfEqualRowsTheFirstRecordGoes) {
    Store(header + Lines(1, "A", "X", "/1") + Lines(2, "A", "X", "/2"));
    room.global.LoadGlobalFavoriten();
    room.form.FavoritenListeGlobal.SetListIndex(1);
    room.global.RemoveGlobalFavorit();
    EXPECT_EQ(Stored(), header + Lines(1, "A", "X", "/2"));
}

TEST_F(GlobalFavoritenTest, RemovalOfTheLastLeavesTheHeader) {
    Store(header + Lines(1, "A", "X", "/a"));
    room.global.LoadGlobalFavoriten();
    room.form.FavoritenListeGlobal.SetListIndex(0);
    room.global.RemoveGlobalFavorit();
    EXPECT_EQ(Stored(), header);
}

TEST_F(GlobalFavoritenTest, RemovalWithoutSelectionOrRecordWritesNothing) {
    Store(header + Lines(1, "A", "X", "/a"));
    room.global.LoadGlobalFavoriten();
    room.global.RemoveGlobalFavorit();
    room.form.FavoritenListeGlobal.AddItem("unknown");
    room.form.FavoritenListeGlobal.SetListIndex(1);
    room.global.RemoveGlobalFavorit();
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(GlobalFavoritenTest, PathWithForeignBytesKeepsThem) {
    disk.AddFile("/m/\xe4.adf", "");
    room.global.AddGlobalFavorit("ä", "X", "/m/\xe4.adf");
    room.global.LoadGlobalFavoriten();
    ASSERT_EQ(room.global.Records().size(), 1U);
    EXPECT_EQ(room.global.Records()[0].FullPath, "/m/\xe4.adf");
}

}  // namespace
}  // namespace kivu::favourites
