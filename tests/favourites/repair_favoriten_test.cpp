#include "favourites/repair_favoriten.h"

#include "favourites_testing.h"

namespace kivu::favourites {
namespace {

class RepairTest : public ::testing::Test {
 protected:
    RepairTest() { disk.AddDirectory("/k/Config/Amiga"); }

    void Add(std::initializer_list<std::pair<const char*, const char*>> favourites) {
        for (const auto& [name, path] : favourites)
            room.store.AddFavoritEntry(name, path, 0, false);
        room.store.SaveFavoriten();
        room.store.LoadFavoriten();
    }
    // Runs the repair, and gives the report.
    std::string Report() {
        room.host.dialogs.shown.clear();
        room.repair.RepairFavoriten();
        if (room.host.dialogs.shown.size() != 1) return "(no single box)";
        return room.host.dialogs.shown[0].text;
    }
    std::string PathOf(std::size_t record) const { return room.store.Entries()[record].FullPath; }

    testing::MemoryFileSystem disk;
    Room room{disk};
};

TEST_F(RepairTest, WithoutErrorsItSaysSoAndWritesNothing) {
    room.Games({{"/k/G/A.adf", "A"}, {"/k/G/B.adf", "B"}});
    Add({{"B", "/k/G/B.adf"}});
    disk.changes.clear();
    EXPECT_EQ(Report(), "No errors found!!");
    const testing::ShownBox& box = room.host.dialogs.shown[0];
    EXPECT_EQ(box.title, "Repair result:");
    EXPECT_EQ(box.buttons, platform::Buttons::Ok);
    EXPECT_EQ(box.icon, platform::Icon::Information);
    EXPECT_TRUE(disk.changes.empty());
    room.form.CurrentLanguage = 1;
    EXPECT_EQ(Report(), "Es wurden keine Fehler gefunden!");
    EXPECT_EQ(room.host.dialogs.shown[0].title, "Reparatur - Ergebnis:");
}

TEST_F(RepairTest, MovedGameIsFoundByItsFileName) {
    room.Games({{"/k/G/A.adf", "A"}, {"/k/New/Zool.adf", "Zool"}});
    Add({{"Zool", "/k/G/Zool.adf"}});
    EXPECT_EQ(Report(), "Repaired:Zool\r");
    EXPECT_EQ(PathOf(0), "/k/New/Zool.adf");
    EXPECT_EQ(disk.BytesOf(room.form.FavoritenIni),
              "[Favoriten]\r\nFav0_Name=Zool\r\nFav0_FullPath=/New/Zool.adf\r\n");
}

TEST_F(RepairTest, MovedGameIsNotTakenForOneWhoseNameContainsIts) {
    room.Games({{"/k/G/A.zip", "A"}, {"/k/G/mspacman.zip", "Ms"}, {"/k/New/pacman.zip", "Pac"}});
    Add({{"pacman", "/k/G/pacman.zip"}});
    EXPECT_EQ(Report(), "Repaired:pacman\r");
    EXPECT_EQ(PathOf(0), "/k/New/pacman.zip");
    // With that one gone, the first that contains the name counts.
    room.form.UAE_FULL.RemoveItem(2);
    EXPECT_EQ(Report(), "Repaired:pacman\r");
    EXPECT_EQ(PathOf(0), "/k/G/mspacman.zip");
}

TEST_F(RepairTest, GameOfTheNameInTheFirstRowCountsAsNone) {
    room.Games({{"/k/G/Zool.adf", "Zool"}, {"/k/H/Atomic Zool.adf", "Atomic"}});
    Add({{"Zool", "/k/G/Zool.adf"}});
    EXPECT_EQ(Report(), "Deleted: Zool\r");
}

TEST_F(RepairTest, RenamedGameIsFoundByItsShownName) {
    room.form.CurrentLanguage = 1;
    room.Games({{"/k/G/A.adf", "A"}, {"/k/New/Zool (1992).adf", "Zool (1992)"}});
    Add({{"Zool", "/k/G/Zool.dsk"}});
    EXPECT_EQ(Report(), "Repariert:Zool\r");
    EXPECT_EQ(PathOf(0), "/k/New/Zool (1992).adf");
}

TEST_F(RepairTest, LostGameIsDeleted) {
    room.Games({{"/k/G/A.adf", "A"}, {"/k/G/B.adf", "B"}});
    Add({{"Gone", "/k/G/Gone.adf"}, {"B", "/k/G/B.adf"}});
    EXPECT_EQ(Report(), "Deleted: Gone\r");
    EXPECT_EQ(room.Names(), Texts{"B"});
    room.form.CurrentLanguage = 1;
    room.form.UAE_FULL.Clear();
    EXPECT_EQ(Report(), "Gelöscht: B\r");
}

TEST_F(RepairTest, NameThatNoPathHoldsIsAnErrorAndGoes) {
    room.Games({{"/k/G/A.adf", "A"}, {"/k/G/B.adf", "B"}, {"/k/G/C.adf", "C"}});
    Add({{"My B", "/k/G/B.adf"}, {"C", "/k/G/C.adf"}});
    EXPECT_EQ(Report(), "Error!?:My B\r");
    EXPECT_EQ(room.Names(), Texts{"C"});
    room.form.CurrentLanguage = 1;
    Add({{"Mein B", "/k/G/B.adf"}});
    EXPECT_EQ(Report(), "Fehler!?:Mein B\r");
}

TEST_F(RepairTest, FavouriteInTheFirstRowOfTheGameListIsDeleted) {
    room.Games({{"/k/G/A.adf", "A"}, {"/k/G/B.adf", "B"}});
    Add({{"A", "/k/G/A.adf"}});
    EXPECT_EQ(Report(), "Deleted: A\r");
    EXPECT_TRUE(room.store.Entries().empty());
}

TEST_F(RepairTest, WithAnEmptyGameListEverySecondOneStays) {
    Add({{"A", "/k/G/A.adf"}, {"B", "/k/G/B.adf"}, {"C", "/k/G/C.adf"}, {"D", "/k/G/D.adf"}});
    EXPECT_EQ(Report(), "Deleted: A\rDeleted: C\rDeleted: \rDeleted: \r");
    EXPECT_EQ(room.Names(), (Texts{"B", "D"}));
    room.store.LoadFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"B", "D"}));
}

TEST_F(RepairTest, LookupTakesTheFirstPathThatHoldsTheName) {
    // The row "Zool" finds the path of "Zool 2" first, which is where it should be.
    room.Games({{"/k/G/A.adf", "A"}, {"/k/G/Zool 2.adf", "Zool 2"}, {"/k/N/Zool.adf", "Zool"}});
    Add({{"Zool 2", "/k/G/Zool 2.adf"}, {"Zool", "/k/G/Zool.adf"}});
    EXPECT_EQ(Report(), "No errors found!!");
    EXPECT_EQ(PathOf(1), "/k/G/Zool.adf");
}

TEST_F(RepairTest, EmptyStoreIsWithoutErrors) {
    EXPECT_EQ(Report(), "No errors found!!");
    EXPECT_EQ(disk.BytesOf(room.form.FavoritenIni),
              "[Favoriten]\r\nFav0_Name=\r\nFav0_FullPath=\r\n");
}

TEST_F(RepairTest, SelectedFavouriteIsClickedAgainWithoutANestedQuestion) {
    room.Games({{"/k/G/A.adf", "A"}, {"/k/New/Zool.adf", "Zool"}});
    Add({{"Zool", "/k/G/Zool.adf"}});
    room.Select(0);
    EXPECT_EQ(Report(), "Repaired:Zool\r");
    EXPECT_EQ(room.form.FavoritenListe.ListIndex(), 0);
    EXPECT_EQ(room.form.UAE_Short.ListIndex(), 1);
}

TEST_F(RepairTest, NothingElseChangesTheStoreMeanwhile) {
    room.Games({{"/k/G/A.adf", "A"}, {"/k/G/B.adf", "B"}});
    Add({{"B", "/k/G/B.adf"}});
    int turns = 0;
    room.host.events.onEvents = [&] {
        ++turns;
        EXPECT_TRUE(room.form.Busy);
        room.repair.RepairFavoriten();
        room.form.UAE_Short.SetListIndex(0);
        room.events.AddToFavorit_Click();
        room.events.DeLFav_Click();
        room.events.FavoritenListe_MouseDown({forms::buttons::right, 0, 0, 0});
    };
    EXPECT_EQ(Report(), "No errors found!!");
    EXPECT_GT(turns, 0);
    EXPECT_EQ(room.Names(), Texts{"B"});
    EXPECT_FALSE(room.form.Busy);
    EXPECT_FALSE(room.repair.IsRunning());
}

TEST_F(RepairTest, GameListThatIsEmptiedDuringASearchDoesNoHarm) {
    room.Games({{"/k/G/A.adf", "A"}, {"/k/N/B.adf", "B"}});
    Add({{"B", "/k/G/B.adf"}});
    room.host.events.onEvents = [&] { room.form.UAE_FULL.Clear(); };
    EXPECT_EQ(Report(), "Deleted: B\r");
}

}  // namespace
}  // namespace kivu::favourites
