// Stores that users, other programs and broken disks have written.

#include "favourites_testing.h"

namespace kivu::favourites {
namespace {

using testing::MemoryFileSystem;

class OddStoresTest : public ::testing::Test {
 protected:
    OddStoresTest() { disk.AddDirectory("/k/Config/Amiga"); }
    void Store(const std::string& bytes) { disk.AddFile(room.form.FavoritenIni, bytes); }

    MemoryFileSystem disk;
    Room room{disk};
};

TEST_F(OddStoresTest, NamesWithSpecialCharactersComeBackByEveryWay) {
    const Texts names{"A=B", "C]", "[D]", "E;F", "Ärger", "#G", "a=b=c", "Ω мир", "x'y", "\"h"};
    for (const std::string& name : names)
        room.store.AddFavoritEntry(name, "/k/Games/" + name + ".adf", 0, false);
    room.store.SaveFavoriten();
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), names);
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(room.store.Entries()[i].FullPath, "/k/Games/" + names[i] + ".adf");
    room.store.Rename(1, "[C]=;");
    room.store.RemoveFavoritAt(0);
    EXPECT_EQ(room.Names()[0], "[C]=;");
    EXPECT_EQ(room.Names().size(), names.size() - 1);
}

TEST_F(OddStoresTest, KeysOfAnyCaseAndBlanksAroundThemAreRead) {
    Store(" [FAVORITEN] ; comment\n  fav0_NAME  =  A  \nFAV0_fullpath=\t/A.adf\n");
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), Texts{"A"});
    EXPECT_EQ(room.store.Entries()[0].FullPath, "/k/A.adf");
}

TEST_F(OddStoresTest, NumbersInOtherSpellingsAreOtherKeys) {
    Store(
        "[Favoriten]\r\nFav00_Name=x\r\nFav00_FullPath=/x\r\nFav+1_Name=y\r\nFav 0_Name=z\r\n"
        "Fav0_Name=A\r\nFav0_FullPath=/A\r\n");
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), Texts{"A"});
}

TEST_F(OddStoresTest, OfDoubleKeysAndSectionsTheFirstCounts) {
    Store(
        "[Favoriten]\r\nFav0_Name=A\r\nFav0_Name=B\r\nFav0_FullPath=/A\r\n"
        "[Favoriten]\r\nFav1_Name=C\r\nFav1_FullPath=/C\r\n");
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), Texts{"A"});
}

TEST_F(OddStoresTest, NoMoreThanThousandAndOneEntriesAreRead) {
    std::string bytes = "[Favoriten]\r\n";
    for (int i = 0; i < 1100; ++i) {
        const std::string n = std::to_string(i);
        bytes += "Fav" + n + "_Name=Game " + n + "\r\nFav" + n + "_FullPath=/G/" + n + ".adf\r\n";
    }
    Store(bytes);
    room.store.LoadFavoriten();
    ASSERT_EQ(room.store.Entries().size(), 1001U);
    EXPECT_EQ(room.store.Entries().back().Name, "Game 1000");
    EXPECT_EQ(room.form.FavoritenListe.ListCount(), 1001);
}

TEST_F(OddStoresTest, ThousandAndOneEntriesAreKeptAndOneMoreIsRefused) {
    for (int i = 0; i < 1001; ++i) {
        const std::string n = std::to_string(i);
        room.store.AddFavoritEntry("Game " + n, "/k/G/" + n + ".adf", 0, false);
    }
    room.store.AddFavoritEntry("A", "/k/G/one more.adf", 0, false);
    room.store.SortFavoriten();
    room.store.SaveFavoriten();
    room.store.LoadFavoriten();
    ASSERT_EQ(room.store.Entries().size(), 1001U);
    EXPECT_EQ(room.store.Entries().back().Name, "Game 1000");
    room.store.RemoveFavoritAt(500);
    EXPECT_EQ(room.store.Entries().size(), 1000U);
    EXPECT_EQ(room.store.Entries()[500].Name, "Game 501");
}

TEST_F(OddStoresTest, PathWithForeignBytesKeepsThemWhereTheFileIsThere) {
    const std::string bytes =
        "/k/Games/K\xe4"
        "fer.adf";
    disk.AddFile(bytes, "");
    room.store.AddFavoritEntry("Käfer", bytes, 0, false);
    room.store.SaveFavoriten();
    EXPECT_EQ(disk.BytesOf(room.form.FavoritenIni),
              "[Favoriten]\r\nFav0_Name=Käfer\r\nFav0_FullPath=/Games/K\xe4"
              "fer.adf\r\n");
    room.store.LoadFavoriten();
    ASSERT_EQ(room.store.Entries().size(), 1U);
    EXPECT_EQ(room.store.Entries()[0].FullPath, bytes);
    EXPECT_EQ(room.store.InMemory()->FindByPathPart("Käfer"), 0);
}

TEST_F(OddStoresTest, PathWithForeignBytesKeepsThemWhileItsDriveIsAway) {
    const std::string stored = "[Favoriten]\r\nFav0_Name=A\r\nFav0_FullPath=../media/\xe4.adf\r\n";
    Store(stored);
    room.store.LoadFavoriten();
    ASSERT_EQ(room.store.Entries().size(), 1U);
    EXPECT_EQ(room.store.Entries()[0].FullPath, "/media/\xe4.adf");
    room.store.SaveFavoriten();
    EXPECT_EQ(disk.BytesOf(room.form.FavoritenIni), stored);
}

TEST_F(OddStoresTest, PathOfAnotherCodePageIsDecodedWhereOnlyThatNameIsThere) {
    disk.AddFile("/k/Games/Käfer.adf", "");
    Store(
        "[Favoriten]\r\nFav0_Name=A\r\nFav0_FullPath=/Games/K\xe4"
        "fer.adf\r\n");
    room.store.LoadFavoriten();
    ASSERT_EQ(room.store.Entries().size(), 1U);
    EXPECT_EQ(room.store.Entries()[0].FullPath, "/k/Games/Käfer.adf");
}

TEST_F(OddStoresTest, FileOfAWindowsHostIsReadInItsCodePage) {
    Store(
        "[Favoriten]\r\nFav0_Name=K\xe4"
        "fer\r\nFav0_FullPath=\\Games\\K\xe4"
        "fer.adf\r\n");
    room.store.LoadFavoriten();
    ASSERT_EQ(room.Names(), Texts{"Käfer"});
    EXPECT_EQ(room.store.Entries()[0].FullPath, "/k/Games/Käfer.adf");
}

TEST(WindowsStores, StoreInTheCodePageGivesText) {
    MemoryFileSystem disk('\\');
    Room room(disk, "C:\\k");
    disk.AddFile("C:\\k\\Games\\Käfer.adf", "");
    disk.AddFile(room.form.FavoritenIni,
                 "[Favoriten]\r\nFav0_Name=K\xe4"
                 "fer\r\nFav0_FullPath=\\Games\\K\xe4"
                 "fer.adf\r\n");
    room.store.LoadFavoriten();
    ASSERT_EQ(room.Names(), Texts{"Käfer"});
    EXPECT_EQ(room.store.Entries()[0].FullPath, "C:\\k\\Games\\Käfer.adf");
}

TEST_F(OddStoresTest, PathFromTheRootWrittenByHandIsTakenAsItStandsWhereItExists) {
    disk.AddFile("/media/A.adf", "");
    Store(
        "[Favoriten]\r\nFav0_Name=A\r\nFav0_FullPath=/media/A.adf\r\n"
        "Fav1_Name=B\r\nFav1_FullPath=/media/B.adf\r\n");
    room.store.LoadFavoriten();
    ASSERT_EQ(room.store.Entries().size(), 2U);
    EXPECT_EQ(room.store.Entries()[0].FullPath, "/media/A.adf");
    EXPECT_EQ(room.store.Entries()[1].FullPath, "/k/media/B.adf");
}

TEST_F(OddStoresTest, PathsAroundTheProgramsDirectoryComeBack) {
    const Texts paths{"/k/A.adf",      "/k2/A.adf", "/k games/A.adf",     "/A.adf",
                      "/kk/k/k/A.adf", "/l/A.adf",  "/k/Config/..A..adf", "/k/ A .adf"};
    for (const std::string& path : paths) {
        disk.AddFile(path, "");
        room.store.AddFavoritEntry("of " + path, path, 0, false);
    }
    room.store.SaveFavoriten();
    room.store.LoadFavoriten();
    ASSERT_EQ(room.store.Entries().size(), paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i)
        EXPECT_EQ(room.store.Entries()[i].FullPath, paths[i]);
}

TEST_F(OddStoresTest, GarbageIsNoFavouriteAndDoesNoHarm) {
    for (const std::string& bytes :
         {std::string("\0\xff[Favoriten", 12), std::string(100000, '['), std::string("=\r\n==\r\n"),
          std::string("\xff\xfe[\0F\0", 6), std::string(70000, 'x') + "\r\n[Favoriten]"}) {
        Store(bytes);
        room.store.LoadFavoriten();
        EXPECT_TRUE(room.store.Entries().empty());
    }
}

TEST_F(OddStoresTest, UnreadableStoreIsNeverWritten) {
    Store("[Favoriten]\r\nFav0_Name=A\r\nFav0_FullPath=/A\r\n");
    disk.SetUnreadable(room.form.FavoritenIni);
    room.store.LoadFavoriten();
    EXPECT_TRUE(room.store.Entries().empty());
    // Readable again: what was not read must still not be replaced.
    disk.SetUnreadable(room.form.FavoritenIni, false);
    room.store.AddFavoritEntry("B", "/k/B", 0, false);
    room.store.SaveFavoriten();
    EXPECT_TRUE(disk.changes.empty());
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), Texts{"A"});
    room.store.AddFavoritEntry("B", "/k/B", 0, false);
    room.store.SaveFavoriten();
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"A", "B"}));
}

TEST_F(OddStoresTest, DirectoryInPlaceOfAStoreStays) {
    disk.AddDirectory(room.form.FavoritenIni);
    disk.AddDirectory(room.form.FavoritenGlobalIni);
    room.store.LoadFavoriten();
    room.store.AddFavoritEntry("B", "/k/B", 0, false);
    room.store.SaveFavoriten();
    room.global.AddGlobalFavorit("B", "Amiga", "/k/B");
    EXPECT_TRUE(disk.changes.empty());
    EXPECT_TRUE(disk.IsDirectory(room.form.FavoritenIni));
    EXPECT_TRUE(disk.IsDirectory(room.form.FavoritenGlobalIni));
}

}  // namespace
}  // namespace kivu::favourites
