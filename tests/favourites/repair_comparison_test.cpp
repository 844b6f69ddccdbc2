// The repair in memory against the one that writes and walks step by step.

#include <random>

#include "favourites_testing.h"
#include "repair/plain_repair.h"

namespace kivu::favourites {
namespace {

class RepairComparison : public ::testing::Test {
 protected:
    // What a repair has come out with.
    struct Outcome {
        std::string bytes;
        std::string report;
        Texts rows, names, paths;
        std::string caption;
        int selected = -1;
    };

    template <typename Run>
    Outcome After(const std::string& store, const std::vector<std::string>& games, bool selected,
                  Run run) {
        testing::MemoryFileSystem disk;
        disk.AddDirectory("/k/Config/Amiga");
        // Two of the names are there as they stand and below the program.
        disk.AddFile("/G/b.adf", "");
        disk.AddFile("/k/G/\xC3\xA4.adf", "");
        Room room(disk);
        if (!store.empty()) disk.AddFile(room.form.FavoritenIni, store);
        for (const std::string& game : games) {
            room.form.UAE_FULL.AddItem(game);
            room.form.UAE_Short.AddItem(game);
        }
        room.store.LoadFavoriten();
        if (selected && room.form.FavoritenListe.ListCount() > 0)
            room.form.FavoritenListe.SetListIndex(0);
        room.host.dialogs.shown.clear();
        // The click on the selected row asks for another repair, unless it knows that one runs.
        room.form.FavoritenListe.onClick = {};
        run(room, disk);
        Outcome outcome;
        outcome.bytes = disk.BytesOf(room.form.FavoritenIni);
        for (const testing::ShownBox& box : room.host.dialogs.shown)
            outcome.report += box.title + "\n" + box.text + "\n";
        outcome.rows = room.form.FavoritenListe.Rows();
        for (const FavoritEntry& entry : room.store.Entries()) {
            outcome.names.push_back(entry.Name);
            outcome.paths.push_back(entry.FullPath);
        }
        outcome.selected = room.form.FavoritenListe.ListIndex();
        outcome.caption = room.form.Caption() + room.form.LoadingBtn.Caption();
        return outcome;
    }
    void Compare(const std::string& store, const std::vector<std::string>& games,
                 bool selected = false) {
        const auto plain = [](Room& room, platform::FileSystem& disk) {
            bench::PlainRepair(room.form, room.store, room.busy, room.pacer, room.host.dialogs,
                               disk)
                .RepairFavoriten();
        };
        const auto ours = [](Room& room, platform::FileSystem&) { room.repair.RepairFavoriten(); };
        const Outcome expected = After(store, games, selected, plain);
        const Outcome outcome = After(store, games, selected, ours);
        ASSERT_EQ(outcome.bytes, expected.bytes) << store;
        ASSERT_EQ(outcome.report, expected.report) << store;
        ASSERT_EQ(outcome.rows, expected.rows) << store;
        ASSERT_EQ(outcome.names, expected.names) << store;
        ASSERT_EQ(outcome.paths, expected.paths) << store;
        ASSERT_EQ(outcome.selected, expected.selected) << store;
        ASSERT_EQ(outcome.caption, expected.caption) << store;
    }
};

template <typename Texts>
const std::string& OneOf(std::mt19937& random, const Texts& texts) {
    return texts[random() % texts.size()];
}

// Values in every form that a profile may hold them in, most of them plain.
std::string RandomValue(std::mt19937& random, const std::string& value) {
    switch (random() % 12) {
        case 0:
            return " " + value + "\t";
        case 1:
            return "\"" + value + "\"";
        case 2:
            return "'\"" + value + "\"'";
        default:
            return value;
    }
}

const std::vector<std::string> directories{"/G/", "/N/", "../", "\\G\\", "/G/Sub/"};
const std::vector<std::string> names{"a", "b", "ab", "bab", "\xC3\xA4", "\xE4", "c (1990)", "c"};
const std::vector<std::string> ends{"", ".adf", ".adf", ".dsk"};

std::string RandomStore(std::mt19937& random) {
    if (random() % 40 == 0) return {};
    std::string store = random() % 10 == 0 ? "\xEF\xBB\xBF" : "";
    store += random() % 10 == 0 ? "; mine\n[Other]\nx=1\n[favoriten]\n" : "[Favoriten]\r\n";
    const char* const lineEnd = random() % 8 == 0 ? "\n" : "\r\n";
    const std::size_t last = random() % 10;
    for (std::size_t number = 0; number < last + random() % 3; ++number) {
        if (random() % 12 == 0) continue;
        const std::string key = (random() % 12 == 0 ? "fav" : "Fav") + std::to_string(number);
        const char* const equals = random() % 12 == 0 ? " = " : "=";
        const std::string& name = OneOf(random, names);
        // A repair knows a favourite by its name within its path.
        const std::string title = random() % 8 == 0 ? OneOf(random, names) : name;
        if (random() % 15 != 0)
            store += key + "_Name" + equals + RandomValue(random, title) + lineEnd;
        if (random() % 8 == 0) store += "; between\r\n\r\n";
        if (random() % 15 != 0) {
            store += key + "_FullPath" + equals +
                     RandomValue(random, OneOf(random, directories) + name + OneOf(random, ends)) +
                     lineEnd;
        }
    }
    if (random() % 8 == 0) store += "[More]\r\nFav0_Name=no\r\n";
    if (random() % 8 == 0 && store.ends_with('\n')) store.pop_back();
    return store;
}

std::vector<std::string> RandomGames(std::mt19937& random) {
    std::vector<std::string> games;
    for (std::size_t n = random() % 8; n > 0; --n) {
        games.push_back(OneOf(random, std::vector<std::string>{"/k/G/", "/k/N/", "/G/", "/x/"}) +
                        OneOf(random, names) + OneOf(random, ends));
    }
    return games;
}

TEST_F(RepairComparison, RandomStoresComeOutTheSameByteForByte) {
    std::mt19937 random(1001);
    for (int round = 0; round < 1500 && !HasFatalFailure(); ++round) {
        const std::string store = RandomStore(random);
        Compare(store, RandomGames(random), random() % 2 == 0);
    }
}

TEST_F(RepairComparison, FullStoresComeOutTheSameByteForByte) {
    std::mt19937 random(7);
    for (const unsigned missing : {0U, 1U, 2U, 5U}) {
        std::string store = "[Favoriten]\r\n";
        std::vector<std::string> games{"/k/G/first.adf"};
        for (int number = 0; number < 300; ++number) {
            const std::string n = std::to_string(number);
            store += "Fav" + n + "_Name=Game " + n + "\r\nFav" + n + "_FullPath=/G/Game " + n +
                     ".adf\r\n";
            if (missing > 0 && random() % missing == 0) continue;
            games.push_back((random() % 2 == 0 ? "/k/G/Game " : "/k/N/Game ") + n + ".adf");
        }
        Compare(store, games);
    }
}

TEST_F(RepairComparison, FileIsWrittenOnce) {
    testing::MemoryFileSystem disk;
    disk.AddDirectory("/k/Config/Amiga");
    Room room(disk);
    for (int n = 0; n < 50; ++n) {
        const std::string name = std::to_string(1000 + n);
        room.store.AddFavoritEntry(name, "/k/G/" + name + ".adf", 0, false);
    }
    room.store.SaveFavoriten();
    room.store.LoadFavoriten();
    disk.changes.clear();
    room.repair.RepairFavoriten();
    EXPECT_EQ(room.store.Entries().size(), 25U);
    EXPECT_EQ(disk.changes, Texts{room.form.FavoritenIni});
}

TEST_F(RepairComparison, WhatTheUserWritesBehindTheBoxStays) {
    testing::MemoryFileSystem disk;
    disk.AddDirectory("/k/Config/Amiga");
    Room room(disk);
    const std::string lines = "Fav0_Name=A\r\nFav0_FullPath=/G/A.adf\r\n";
    disk.AddFile(room.form.FavoritenIni, "[Favoriten]\r\n" + lines);
    room.Games({{"/k/G/0.adf", "0"}, {"/k/N/A.adf", "A"}});
    room.store.LoadFavoriten();
    room.host.dialogs.onShow = [&] {
        disk.AddFile(room.form.FavoritenIni, "; mine\r\n[Favoriten]\r\n" + lines + "Note=1\r\n");
    };
    room.repair.RepairFavoriten();
    EXPECT_EQ(disk.BytesOf(room.form.FavoritenIni),
              "; mine\r\n[Favoriten]\r\nFav0_Name=A\r\nFav0_FullPath=/N/A.adf\r\nNote=1\r\n");
}

TEST_F(RepairComparison, FullDiskLeavesFileAndListInStep) {
    testing::MemoryFileSystem disk;
    disk.AddDirectory("/k/Config/Amiga");
    Room room(disk);
    disk.AddFile(room.form.FavoritenIni,
                 "[Favoriten]\r\nFav0_Name=A\r\nFav0_FullPath=/G/A.adf\r\nFav1_Name=B\r\n"
                 "Fav1_FullPath=/G/B.adf\r\n");
    room.store.LoadFavoriten();
    disk.FailChanges(std::errc::no_space_on_device);
    room.repair.RepairFavoriten();
    EXPECT_EQ(room.Names(), (Texts{"A", "B"}));
    EXPECT_EQ(room.form.FavoritenListe.Rows(), (Texts{"A", "B"}));
}

TEST_F(RepairComparison, ProgramThatEndsMeanwhileHasStoredWhatWasDone) {
    testing::MemoryFileSystem disk;
    disk.AddDirectory("/k/Config/Amiga");
    Room room(disk);
    disk.AddFile(room.form.FavoritenIni,
                 "[Favoriten]\r\nFav0_Name=A\r\nFav0_FullPath=/G/A.adf\r\n");
    room.Games({{"/k/G/0.adf", "0"}});
    room.store.LoadFavoriten();
    room.host.events.onEvents = [&] { room.form.Ended = true; };
    room.repair.RepairFavoriten();
    EXPECT_TRUE(room.host.dialogs.shown.empty());
    EXPECT_EQ(disk.BytesOf(room.form.FavoritenIni),
              "[Favoriten]\r\nFav0_Name=\r\nFav0_FullPath=\r\n");
}

}  // namespace
}  // namespace kivu::favourites
