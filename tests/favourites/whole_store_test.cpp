// Whatever happens in the middle of a write, the old store is there afterwards or the new one,
// whole.

#include <filesystem>
#include <functional>
#include <map>

#include "favourites_testing.h"
#include "host_files.h"
#include "killed_process.h"
#include "platform/temporary_directory.h"
#include "testing/faulty_file_system.h"

namespace kivu::favourites {
namespace {

using testing::FaultyFileSystem;
using testing::Outcome;
using testing::TemporaryDirectory;

struct Change {
    std::string name;
    std::function<void(Room&)> run;
};

// Every way in which the stores are written.
std::vector<Change> Changes() {
    return {
        {"add",
         [](Room& room) {
             room.Games({{"/games/New.adf", "New"}});
             room.form.UAE_Short.SetListIndex(0);
             room.events.AddToFavorit_Click();
         }},
        {"remove", [](Room& room) { room.store.RemoveFavoritAt(0); }},
        {"rename", [](Room& room) { room.store.Rename(1, "Another name"); }},
        {"sort",
         [](Room& room) {
             room.store.SwapFavoriten(0, 2);
             room.store.SaveFavoriten();
         }},
        {"repair",
         [](Room& room) {
             room.Games({{"/moved/0.adf", "0"},
                         {"/moved/Apidya.adf", "Apidya"},
                         {"/moved/Turrican.adf", "Turrican"},
                         {"/moved/Zool.adf", "Zool"}});
             room.repair.RepairFavoriten();
         }},
        {"add global",
         [](Room& room) { room.global.AddGlobalFavorit("New", "Amiga", "/games/New.adf"); }},
        {"remove global",
         [](Room& room) {
             room.global.LoadGlobalFavoriten();
             room.form.FavoritenListeGlobal.SetListIndex(0);
             room.global.RemoveGlobalFavorit();
         }},
    };
}

const std::string own =
    "[Favoriten]\r\nFav0_Name=Apidya\r\nFav0_FullPath=/games/Apidya.adf\r\n"
    "Fav1_Name=Turrican\r\nFav1_FullPath=/games/Turrican.adf\r\n"
    "Fav2_Name=Zool\r\nFav2_FullPath=/games/Zool.adf\r\n";
const std::string global =
    "[Favoriten_Global]\r\nFav0_Name=\r\nFav0_System=\r\nFav0_FullPath=\r\n"
    "Fav1_Name=A\r\nFav1_System=X\r\nFav1_FullPath=/a\r\n"
    "Fav2_Name=B\r\nFav2_System=Y\r\nFav2_FullPath=/b\r\n";

class WholeStoreTest : public ::testing::Test {
 protected:
    std::string Own() const { return directory.Read("Config/Amiga/Favoriten.ini"); }
    std::string Global() const { return directory.Read("Config/Favoriten_Global.ini"); }
    void Reset() {
        std::filesystem::remove_all(directory.Path("Config"));
        std::filesystem::create_directories(directory.Path("Config/Amiga"));
        directory.Write("Config/Amiga/Favoriten.ini", own);
        directory.Write("Config/Favoriten_Global.ini", global);
    }
    // The change by a program of its own over this disk.
    void Run(const Change& change, platform::FileSystem& files) {
        Room room(files, directory.Root());
        room.store.LoadFavoriten();
        change.run(room);
    }
    // What a program that starts now shows of both stores.
    Texts Shown() {
        Room room(disk, directory.Root());
        room.store.LoadFavoriten();
        room.global.LoadGlobalFavoriten();
        Texts rows = room.form.FavoritenListe.Rows();
        for (const FavoritEntry& entry : room.store.Entries())
            rows.push_back(entry.FullPath);
        for (const GlobalFavorit& record : room.global.Records())
            rows.push_back(record.Display + record.FullPath);
        return rows;
    }

    TemporaryDirectory directory;
    testing::HostFileSystem disk;
};

TEST_F(WholeStoreTest, FullDiskAtAnyStepOfAnyWriteLeavesTheOldStore) {
    using Step = FaultyFileSystem::Step;
    for (const Change& change : Changes()) {
        for (const Step step : {Step::Write, Step::Flush, Step::Rename}) {
            Reset();
            const Texts before = Shown();
            FaultyFileSystem faulty(disk);
            faulty.FailFrom(step, 1, std::errc::no_space_on_device);
            Run(change, faulty);
            EXPECT_GE(faulty.Failures(), 1) << change.name;
            EXPECT_EQ(Own(), own) << change.name;
            EXPECT_EQ(Global(), global) << change.name;
            EXPECT_EQ(Shown(), before) << change.name;
        }
    }
}

TEST_F(WholeStoreTest, OneFailedWriteOfSeveralLeavesAWholeStore) {
    for (const Change& change : Changes()) {
        Reset();
        FaultyFileSystem counting(disk);
        Run(change, counting);
        const Texts after = Shown();
        const int writes = counting.Writes();
        EXPECT_GE(writes, 1) << change.name;
        for (int n = 1; n <= writes; ++n) {
            Reset();
            const Texts before = Shown();
            FaultyFileSystem faulty(disk);
            faulty.FailOnce(FaultyFileSystem::Step::Rename, n, std::errc::io_error);
            Run(change, faulty);
            EXPECT_TRUE(Shown() == before || Shown() == after) << change.name << " " << n;
        }
    }
}

TEST_F(WholeStoreTest, UnreadableStoreSurvivesEveryChange) {
    for (const Change& change : Changes()) {
        Reset();
        FaultyFileSystem faulty(disk);
        faulty.FailFrom(FaultyFileSystem::Step::Read, 1, std::errc::io_error);
        Run(change, faulty);
        EXPECT_EQ(Own(), own) << change.name;
        EXPECT_EQ(Global(), global) << change.name;
    }
}

TEST_F(WholeStoreTest, KillAtAnySystemCallLeavesTheOldStoreOrTheNewOne) {
    for (const Change& change : Changes()) {
        Reset();
        const Texts before = Shown();
        const std::string oldOwn = Own(), oldGlobal = Global();
        Run(change, disk);
        const Texts after = Shown();
        const std::string newOwn = Own(), newGlobal = Global();
        EXPECT_TRUE(newOwn != oldOwn || newGlobal != oldGlobal) << change.name;

        int kept = 0, replaced = 0;
        Outcome outcome = Outcome::killed;
        for (int call = 1; outcome == Outcome::killed; ++call) {
            ASSERT_LT(call, 1000);
            Reset();
            outcome = testing::RunAndKillAt(call, [&] { Run(change, disk); });
            if (outcome == Outcome::untraceable) GTEST_SKIP() << "this host traces no processes";
            const bool isOld = Own() == oldOwn && Global() == oldGlobal;
            const bool isNew = Own() == newOwn && Global() == newGlobal;
            EXPECT_TRUE(isOld || isNew) << change.name << ", killed at call " << call;
            EXPECT_EQ(Shown(), isNew ? after : before) << change.name << " " << call;
            ++(isNew ? replaced : kept);
        }
        // The kills have hit both sides of the one step that counts.
        EXPECT_GE(kept, 5) << change.name;
        EXPECT_GE(replaced, 1) << change.name;
    }
}

}  // namespace
}  // namespace kivu::favourites
