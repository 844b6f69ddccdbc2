#include "favourites/favoriten.h"

#include "favourites_testing.h"

namespace kivu::favourites {
namespace {

class FavoritenTest : public ::testing::Test {
 protected:
    FavoritenTest() { disk.AddDirectory("/k/Config/Amiga"); }

    void Store(const std::string& bytes) { disk.AddFile(room.form.FavoritenIni, bytes); }
    std::string Stored() const { return disk.BytesOf(room.form.FavoritenIni); }
    // One entry of the file as the program writes it.
    static std::string Lines(int number, const std::string& name, const std::string& path) {
        const std::string key = "Fav" + std::to_string(number);
        return key + "_Name=" + name + "\r\n" + key + "_FullPath=" + path + "\r\n";
    }
    // A, B, C ... with the paths /k/G/A.adf and so on, added and saved.
    void Add(const std::string& names) {
        for (const char name : names) {
            const std::string text(1, name);
            room.store.AddFavoritEntry(text, "/k/G/" + text + ".adf", 0, false);
        }
        room.store.SaveFavoriten();
    }

    testing::MemoryFileSystem disk;
    Room room{disk};
    const std::string header = "[Favoriten]\r\n";
};

TEST_F(FavoritenTest, MissingFileGivesAnEmptyListAndIsNotMade) {
    room.form.FavoritenListe.AddItem("of another emulator");
    room.store.LoadFavoriten();
    EXPECT_TRUE(room.store.Entries().empty());
    EXPECT_EQ(room.form.FavoritenListe.ListCount(), 0);
    EXPECT_EQ(room.captionUpdates, 1);
    EXPECT_EQ(Stored(), "(no file)");
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(FavoritenTest, LoadFillsArrayAndListInTheOrderOfTheNumbers) {
    Store(header + Lines(1, "Zool", "/Games/Zool.adf") + Lines(0, "Apidya", "/Games/Apidya.adf"));
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"Apidya", "Zool"}));
    EXPECT_EQ(room.store.Entries()[1].FullPath, "/k/Games/Zool.adf");
    EXPECT_EQ(room.store.Entries()[1].Flag, 0);
    EXPECT_EQ(room.form.FavoritenListe.Rows(), (Texts{"Apidya", "Zool"}));
    EXPECT_EQ(room.form.FavoritenListe.ListIndex(), -1);
}

TEST_F(FavoritenTest, LoadForgetsTheEmulatorBefore) {
    Add("AB");
    room.form.FavoritenIni = "/k/Config/C64/Favoriten.ini";
    room.store.LoadFavoriten();
    EXPECT_TRUE(room.store.Entries().empty());
    EXPECT_EQ(room.form.FavoritenListe.ListCount(), 0);
}

TEST_F(FavoritenTest, OneGapIsSteppedOverAndTwoEndTheList) {
    Store(header + Lines(0, "A", "/A") + Lines(2, "C", "/C") + Lines(4, "E", "/E") +
          Lines(7, "H", "/H"));
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"A", "C", "E"}));
}

TEST_F(FavoritenTest, EntriesBehindAGapGetNewNumbersAtTheNextSave) {
    Store(header + Lines(0, "A", "/A") + Lines(2, "C", "/C") + Lines(4, "E", "/E"));
    room.store.LoadFavoriten();
    room.store.SaveFavoriten();
    EXPECT_EQ(Stored(), header + Lines(0, "A", "/A") + Lines(2, "E", "/E") + Lines(4, "", "") +
                            Lines(1, "C", "/C") + Lines(3, "", ""));
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"A", "C", "E"}));
}

TEST_F(FavoritenTest, EntryBehindAnEmptyFirstOneIsFound) {
    Store(header + "Fav0_Name=\r\nFav0_FullPath=\r\n" + Lines(1, "B", "/B"));
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), Texts{"B"});
}

TEST_F(FavoritenTest, EntryWithoutAPathIsPassedOverAndIsNoGap) {
    Store(header + "Fav0_Name=A\r\nFav0_FullPath=\r\nFav1_Name=B\r\n" + Lines(2, "C", "/C"));
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), Texts{"C"});
}

TEST_F(FavoritenTest, PathStandsOnceWhateverItsName) {
    Store(header + Lines(0, "A", "/A.adf") + Lines(1, "Another", "/A.adf") +
          Lines(2, "a", "/a.adf"));
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"A", "a"}));
}

TEST_F(FavoritenTest, AddNeedsNameAndPath) {
    room.store.AddFavoritEntry("", "/k/A", 0, true);
    room.store.AddFavoritEntry("A", "", 0, true);
    EXPECT_TRUE(room.store.Entries().empty());
    EXPECT_EQ(room.captionUpdates, 0);
}

TEST_F(FavoritenTest, AddRefusesATextThatTheFileWouldNotGiveBack) {
    for (const char* text : {"  ", "\t", "\"\"", "''", "\rA", "\" \""}) {
        room.store.AddFavoritEntry(text, "/k/A", 0, false);
        room.store.AddFavoritEntry("A", text, 0, false);
    }
    // Quotes with something in between are given back without them, which is not nothing.
    room.store.AddFavoritEntry("\"A\"", "/k/A", 0, false);
    EXPECT_EQ(room.Names(), Texts{"\"A\""});
}

TEST_F(FavoritenTest, AddKeepsTheFlagAndFillsTheListOnlyWhenAsked) {
    room.store.AddFavoritEntry("A", "/k/A", 7, false);
    EXPECT_EQ(room.form.FavoritenListe.ListCount(), 0);
    room.store.AddFavoritEntry("B", "/k/B", 0, true);
    EXPECT_EQ(room.form.FavoritenListe.Rows(), (Texts{"A", "B"}));
    EXPECT_EQ(room.store.Entries()[0].Flag, 7);
    EXPECT_EQ(room.captionUpdates, 1);
}

TEST_F(FavoritenTest, SaveWritesNameThenPathRelativeToTheProgram) {
    room.store.AddFavoritEntry("A", "/k/Games/A.adf", 0, false);
    room.store.AddFavoritEntry("B", "/other/B.adf", 0, false);
    room.store.SaveFavoriten();
    EXPECT_EQ(Stored(), header + Lines(0, "A", "/Games/A.adf") + Lines(1, "B", "../other/B.adf") +
                            Lines(2, "", ""));
    EXPECT_EQ(disk.changes.size(), 1U);
    room.store.LoadFavoriten();
    EXPECT_EQ(room.store.Entries()[0].FullPath, "/k/Games/A.adf");
    EXPECT_EQ(room.store.Entries()[1].FullPath, "/other/B.adf");
}

TEST_F(FavoritenTest, OnWindowsPathsAreCutAndGivenBack) {
    testing::MemoryFileSystem windows('\\');
    windows.AddDirectory("C:\\Kivu\\Config\\Amiga");
    Room there(windows, "C:\\Kivu");
    there.store.AddFavoritEntry("Übung", "C:\\Kivu\\Games\\Übung.adf", 0, false);
    there.store.AddFavoritEntry("B", "D:\\B.adf", 0, false);
    there.store.SaveFavoriten();
    // Windows-1252, as the other files there.
    EXPECT_EQ(windows.BytesOf("C:\\Kivu\\Config\\Amiga\\Favoriten.ini"),
              "[Favoriten]\r\nFav0_Name=\xdc"
              "bung\r\nFav0_FullPath=\\Games\\\xdc"
              "bung.adf\r\nFav1_Name=B\r\nFav1_FullPath=D:\\B.adf\r\nFav2_Name=\r\n"
              "Fav2_FullPath=\r\n");
    there.store.LoadFavoriten();
    EXPECT_EQ(there.store.Entries()[0].FullPath, "C:\\Kivu\\Games\\Übung.adf");
    EXPECT_EQ(there.store.Entries()[1].FullPath, "D:\\B.adf");
    EXPECT_EQ(there.Names(), (Texts{"Übung", "B"}));
}

TEST_F(FavoritenTest, OnWindowsAPathThatOnlyBeginsLikeTheProgramsComesBack) {
    testing::MemoryFileSystem windows('\\');
    windows.AddDirectory("C:\\Kivu\\Config\\Amiga");
    Room there(windows, "C:\\Kivu");
    there.store.AddFavoritEntry("A", "C:\\Kivu2\\Roms\\A.adf", 0, false);
    there.store.SaveFavoriten();
    EXPECT_EQ(windows.BytesOf(there.form.FavoritenIni),
              "[Favoriten]\r\nFav0_Name=A\r\nFav0_FullPath=C:\\Kivu2\\Roms\\A.adf\r\n");
    there.store.LoadFavoriten();
    ASSERT_EQ(there.store.Entries().size(), 1U);
    EXPECT_EQ(there.store.Entries()[0].FullPath, "C:\\Kivu2\\Roms\\A.adf");
}

TEST_F(FavoritenTest, SaveThatChangesNothingDoesNotWrite) {
    Add("ABC");
    disk.changes.clear();
    room.store.SaveFavoriten();
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(FavoritenTest, SaveWipesAsManyKeysBehindTheLastAsThereAreLiveOnesLessOne) {
    Add("ABCD");
    EXPECT_EQ(Stored(), header + Lines(0, "A", "/G/A.adf") + Lines(1, "B", "/G/B.adf") +
                            Lines(2, "C", "/G/C.adf") + Lines(3, "D", "/G/D.adf") +
                            Lines(4, "", "") + Lines(5, "", "") + Lines(6, "", ""));
}

TEST_F(FavoritenTest, OtherLinesOfTheFileSurviveEverySave) {
    Store("; mine\r\n[Other]\r\nFav0_Name=x\r\n" + header + "fav0_name = Old\r\nNote=kept\r\n");
    Add("A");
    EXPECT_EQ(Stored(), "; mine\r\n[Other]\r\nFav0_Name=x\r\n" + header +
                            "fav0_name=A\r\nNote=kept\r\nFav0_FullPath=/G/A.adf\r\n");
}

TEST_F(FavoritenTest, RemovingTheOnlyOneLeavesEmptyKeys) {
    Add("A");
    room.store.RemoveFavoritAt(0);
    EXPECT_TRUE(room.store.Entries().empty());
    EXPECT_EQ(Stored(), header + Lines(0, "", ""));
}

TEST_F(FavoritenTest, TheLastOfTwoComesBack) {
    Store(header + Lines(0, "A", "/G/A.adf") + Lines(1, "B", "/G/B.adf"));
    room.store.LoadFavoriten();
    room.store.RemoveFavoritAt(1);
    EXPECT_EQ(room.Names(), (Texts{"A", "B"}));
    EXPECT_EQ(Stored(), header + Lines(0, "A", "/G/A.adf") + Lines(1, "B", "/G/B.adf"));
}

TEST_F(FavoritenTest, TheFirstOfTwoGoesAndTheOtherStandsTwiceAndStays) {
    Store(header + Lines(0, "A", "/G/A.adf") + Lines(1, "B", "/G/B.adf"));
    room.store.LoadFavoriten();
    room.store.RemoveFavoritAt(0);
    EXPECT_EQ(room.Names(), Texts{"B"});
    const std::string twice = header + Lines(0, "B", "/G/B.adf") + Lines(1, "B", "/G/B.adf");
    EXPECT_EQ(Stored(), twice);
    room.store.RemoveFavoritAt(0);
    EXPECT_EQ(room.Names(), Texts{"B"});
    EXPECT_EQ(Stored(), header + Lines(0, "", "") + Lines(1, "B", "/G/B.adf"));
}

TEST_F(FavoritenTest, AnyOfThreeCanBeRemoved) {
    const Texts left[] = {{"B", "C"}, {"A", "C"}, {"A", "B"}};
    for (int index = 0; index < 3; ++index) {
        Store(header + Lines(0, "A", "/G/A.adf") + Lines(1, "B", "/G/B.adf") +
              Lines(2, "C", "/G/C.adf"));
        room.store.LoadFavoriten();
        room.store.RemoveFavoritAt(index);
        const Texts& names = left[index];
        EXPECT_EQ(room.Names(), names);
        EXPECT_EQ(room.form.FavoritenListe.Rows(), names);
        EXPECT_EQ(Stored(), header + Lines(0, names[0], "/G/" + names[0] + ".adf") +
                                Lines(1, names[1], "/G/" + names[1] + ".adf") + Lines(2, "", ""));
    }
}

TEST_F(FavoritenTest, AnyOfManyCanBeRemoved) {
    for (int index = 0; index < 9; ++index) {
        disk.Remove(room.form.FavoritenIni);
        room.store.LoadFavoriten();
        Add("ABCDEFGHI");
        Texts names = room.Names();
        names.erase(names.begin() + index);
        room.store.RemoveFavoritAt(index);
        EXPECT_EQ(room.Names(), names);
    }
}

TEST_F(FavoritenTest, RemoveOutOfRangeHasNoEffect) {
    room.store.RemoveFavoritAt(0);
    EXPECT_EQ(Stored(), "(no file)");
    Add("AB");
    disk.changes.clear();
    for (const int index : {-1, 2, 3, 32767, -32768})
        room.store.RemoveFavoritAt(index);
    EXPECT_EQ(room.Names(), (Texts{"A", "B"}));
    EXPECT_TRUE(disk.changes.empty());
}

TEST_F(FavoritenTest, BlankRecordsAreNotWrittenAndTheRestMovesUp) {
    Add("ABCD");
    room.Blank(1);
    room.store.SaveFavoriten();
    EXPECT_EQ(Stored(), header + Lines(0, "A", "/G/A.adf") + Lines(1, "C", "/G/C.adf") +
                            Lines(2, "D", "/G/D.adf") + Lines(3, "", "") + Lines(4, "", "") +
                            Lines(5, "", "") + Lines(6, "", ""));
}

TEST_F(FavoritenTest, NothingIsWrittenWhenAllRecordsAreBlank) {
    Add("AB");
    const std::string before = Stored();
    room.Blank(0);
    room.Blank(1);
    room.store.SaveFavoriten();
    EXPECT_EQ(Stored(), before);
}

TEST_F(FavoritenTest, BlankRecordsAloneMakeNoFile) {
    room.store.AddFavoritEntry("A", "/k/A", 0, false);
    room.Blank(0);
    room.store.SaveFavoriten();
    EXPECT_TRUE(disk.changes.empty());
    EXPECT_EQ(Stored(), "(no file)");
}

TEST_F(FavoritenTest, SortLooksAtTheFirstCharacterAloneAndKeepsTies) {
    for (const char* name : {"b2", "Ä1", "a", "b1", "B", "Ä0", "1", "é"}) {
        room.store.AddFavoritEntry(name, std::string("/k/") + name, 0, false);
    }
    room.store.SortFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"1", "B", "a", "b2", "b1", "Ä1", "Ä0", "é"}));
}

TEST_F(FavoritenTest, SortDoesNotCarryANameAcrossABlankRecord) {
    Add("CXA");
    room.Blank(1);
    room.store.SortFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"C", "", "A"}));
}

TEST_F(FavoritenTest, SwapTakesAllFieldsAndIgnoresOtherIndices) {
    room.store.AddFavoritEntry("A", "/k/A", 1, false);
    room.store.AddFavoritEntry("B", "/k/B", 2, false);
    room.store.SwapFavoriten(0, 1);
    EXPECT_EQ(room.store.Entries()[0].FullPath, "/k/B");
    EXPECT_EQ(room.store.Entries()[0].Flag, 2);
    EXPECT_EQ(room.store.Entries()[1].Name, "A");
    room.store.SwapFavoriten(0, 2);
    room.store.SwapFavoriten(-1, 1);
    EXPECT_EQ(room.Names(), (Texts{"B", "A"}));
}

TEST_F(FavoritenTest, FillLeavesBlankNamesOutAndSelectsTheRowAgain) {
    Add("ABCD");
    room.store.FillFavoritenListe();
    room.form.FavoritenListe.onClick = nullptr;
    room.form.FavoritenListe.SetListIndex(2);
    room.Blank(0);
    room.store.FillFavoritenListe();
    EXPECT_EQ(room.form.FavoritenListe.Rows(), (Texts{"B", "C", "D"}));
    EXPECT_EQ(room.form.FavoritenListe.ListIndex(), 2);
    room.Blank(1);
    room.store.FillFavoritenListe();
    EXPECT_EQ(room.form.FavoritenListe.ListIndex(), -1);
}

TEST_F(FavoritenTest, RowsAreCountedWithoutBlankRecords) {
    Add("ABC");
    room.Blank(1);
    EXPECT_EQ(room.store.RecordOfRow(0), 0);
    EXPECT_EQ(room.store.RecordOfRow(1), 2);
    EXPECT_EQ(room.store.RecordOfRow(2), -1);
    EXPECT_EQ(room.store.RecordOfRow(-1), -1);
}

TEST_F(FavoritenTest, RenameWritesOneKeyOfTheRow) {
    Add("ABC");
    const std::string before = Stored();
    room.store.Rename(1, "Bee");
    std::string expected = before;
    expected.replace(expected.find("Name=B"), 6, "Name=Bee");
    EXPECT_EQ(Stored(), expected);
    EXPECT_EQ(room.Names(), (Texts{"A", "Bee", "C"}));
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"A", "Bee", "C"}));
}

TEST_F(FavoritenTest, RenameThatTheDiskRefusesIsWrittenWithTheNextSave) {
    Add("ABC");
    disk.SetUnreadable(room.form.FavoritenIni);
    disk.changes.clear();
    room.store.Rename(1, "Bee");
    EXPECT_EQ(room.Names(), (Texts{"A", "Bee", "C"}));
    EXPECT_TRUE(disk.changes.empty());
    disk.SetUnreadable(room.form.FavoritenIni, false);
    room.store.SaveFavoriten();
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"A", "Bee", "C"}));
}

TEST_F(FavoritenTest, RenameBehindAGapIsNotLost) {
    Store(header + Lines(0, "A", "/A") + Lines(2, "C", "/C") + Lines(3, "C2", "/C") +
          Lines(4, "D", "/D"));
    room.store.LoadFavoriten();
    room.store.Rename(1, "Sea");
    room.store.Rename(2, "Dee");
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"A", "Sea", "Dee"}));
}

}  // namespace
}  // namespace kivu::favourites
