// Whatever happens in the middle of a write, the old store is there afterwards or the new one,
// whole.

#include <algorithm>
#include <filesystem>
#include <functional>

#include "favourites_testing.h"
#include "host_files.h"
#include "killed_process.h"
#include "testing/faulty_file_system.h"
#include "testing/temporary_directory.h"

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

// A repair that writes several times, once for each favourite that it drops.
const Change dropping{"dropping repair", [](Room& room) {
                          room.Games({{"/moved/0.adf", "0"}, {"/moved/Turrican.adf", "Turrican"}});
                          room.repair.RepairFavoriten();
                      }};

struct Stores {
    std::string name, own, global;
};

const std::string own =
    "[Favoriten]\r\nFav0_Name=Apidya\r\nFav0_FullPath=/games/Apidya.adf\r\n"
    "Fav1_Name=Turrican\r\nFav1_FullPath=/games/Turrican.adf\r\n"
    "Fav2_Name=Zool\r\nFav2_FullPath=/games/Zool.adf\r\n";
const std::string global =
    "[Favoriten_Global]\r\nFav0_Name=\r\nFav0_System=\r\nFav0_FullPath=\r\n"
    "Fav1_Name=A\r\nFav1_System=X\r\nFav1_FullPath=/a\r\n"
    "Fav2_Name=B\r\nFav2_System=Y\r\nFav2_FullPath=/b\r\n";

// As no program has written them: a gap, double keys and paths, notes, names with "=" and "]".
Stores OddStores() {
    return {"odd",
            "; mine\n[Other]\nFav0_Name=x\n[favoriten] ; here\nNOTE = kept\n"
            "fav0_NAME = Apidya = [1]\nFav0_FullPath=/games/Apidya.adf\nFav0_Name=again\n"
            "Fav2_Name=Turrican]\nFav2_FullPath=/games/Turrican.adf\n"
            "Fav3_Name=twice\nFav3_FullPath=/games/Turrican.adf\n"
            "Fav4_Name=[Zool]=]\nFav4_FullPath=/games/Zool].adf\nFav9_Name=out of reach",
            "Fav1_Name=in no section\n[Favoriten_Global]\nFav3_Name=A=\nFav3_System=]\n"
            "Fav3_FullPath=/a\nFav3_FullPath=/b\nFav1000_Name=[B]\nFav1000_System=Y\n"
            "Fav1000_FullPath=/b\nFav40_Name=C\nFav40_System=Z\nFav40_FullPath=/c"};
}

// One place is left in each.
Stores LargeStores() {
    Stores stores{"large", "[Favoriten]\r\n", "[Favoriten_Global]\r\n"};
    for (int i = 0; i < 1000; ++i) {
        const std::string key = "Fav" + std::to_string(i),
                          path = "_FullPath=../g/" + key + ".adf\r\n";
        stores.own += key + "_Name=" + key + "\r\n" + key + path;
        if (i > 0)
            stores.global += key + "_Name=" + key + "\r\n" + key + "_System=X\r\n" + key + path;
    }
    return stores;
}

class WholeStoreTest : public ::testing::Test {
 protected:
    // The bytes of both files.
    struct State {
        std::string own, global;
        bool operator==(const State&) const = default;
    };

    std::string Own() const { return directory.Read("Config/Amiga/Favoriten.ini"); }
    std::string Global() const { return directory.Read("Config/Favoriten_Global.ini"); }
    void Reset() {
        std::filesystem::remove_all(directory.Path("Config"));
        std::filesystem::create_directories(directory.Path("Config/Amiga"));
        directory.Write("Config/Amiga/Favoriten.ini", stores.own);
        directory.Write("Config/Favoriten_Global.ini", stores.global);
    }
    State Now() const { return {Own(), Global()}; }
    // The disk in front of the change and after each of its writes.
    std::vector<State> StatesOf(const Change& change) {
        Reset();
        FaultyFileSystem counting(disk);
        Run(change, counting);
        std::vector<State> states;
        for (int n = 1; n <= counting.Writes() + 1; ++n) {
            Reset();
            FaultyFileSystem faulty(disk);
            faulty.FailFrom(FaultyFileSystem::Step::Rename, n, std::errc::io_error);
            Run(change, faulty);
            states.push_back(Now());
        }
        return states;
    }
    void KillEverywhere(const Change& change);
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

    Stores stores{"plain", own, global};
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

void WholeStoreTest::KillEverywhere(const Change& change) {
    const std::string what = change.name + ", " + stores.name + " stores";
    const std::vector<State> states = StatesOf(change);
    EXPECT_GE(states.size(), 2U) << what;
    EXPECT_NE(states.front(), states.back()) << what;
    int kept = 0, replaced = 0;
    Outcome outcome = Outcome::killed;
    for (int call = 1; outcome == Outcome::killed; ++call) {
        ASSERT_LT(call, 1000);
        Reset();
        outcome = testing::RunAndKillAt(call, [&] { Run(change, disk); });
        if (outcome == Outcome::untraceable) GTEST_SKIP() << "this host traces no processes";
        const State now = Now();
        EXPECT_NE(std::find(states.begin(), states.end(), now), states.end())
            << what << ", killed at call " << call;
        kept += now == states.front();
        replaced += now == states.back();
        if (now != states.front()) continue;
        // What the kill has left lying about is in nobody's way.
        Run(change, disk);
        EXPECT_EQ(Now(), states.back()) << what << ", again after call " << call;
    }
    // The kills have hit both sides of the steps that count.
    EXPECT_GE(kept, 5) << what;
    EXPECT_GE(replaced, 1) << what;
}

TEST_F(WholeStoreTest, KillAtAnySystemCallLeavesTheOldStoreOrTheNewOne) {
    for (const Change& change : Changes())
        KillEverywhere(change);
}

TEST_F(WholeStoreTest, KillLeavesOddStoresWhole) {
    stores = OddStores();
    Reset();
    EXPECT_EQ(Shown().size(), 3U + 3U + 2U);
    for (const Change& change : Changes())
        KillEverywhere(change);
}

TEST_F(WholeStoreTest, KillLeavesLargeStoresWhole) {
    stores = LargeStores();
    Reset();
    EXPECT_EQ(Shown().size(), 1000U + 1000U + 999U);
    for (const Change& change : Changes()) {
        if (change.name.starts_with("add")) KillEverywhere(change);
    }
}

TEST_F(WholeStoreTest, KillInARepairLeavesTheOldStoreOrTheNewOne) {
    KillEverywhere(dropping);
    EXPECT_EQ(StatesOf(dropping).size(), 2U);
}

}  // namespace
}  // namespace kivu::favourites
