#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <vector>

#include "hosts/linux/file_system_linux.h"
#include "hosts/linux/name_indexes.h"
#include "testing/temporary_directory.h"

namespace fs = std::filesystem;

namespace kivu::hosts {
namespace {

using Found = std::optional<std::string>;

class FirstMatchLinux : public ::testing::Test {
 protected:
    void Write(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            directory.Write(name, "x");
    }
    Found First(std::string_view prefix, std::string_view ending = "",
                std::string_view stem = "") const {
        return files.FirstMatch(directory.Root(), prefix, ending, stem);
    }
    // As any file system gives it.
    Found Plain(std::string_view prefix, std::string_view ending, std::string_view stem) const {
        return files.platform::FileSystem::FirstMatch(directory.Root(), prefix, ending, stem);
    }

    kivu::testing::TemporaryDirectory directory;
    LinuxFileSystem files;
};

TEST_F(FirstMatchLinux, PicturesThenTheSameStemThenTheOrderOfNames) {
    Write({"Turrican II.png", "Turrican.nfo"});
    EXPECT_EQ(First("turrican"), "Turrican II.png");
    Write({"Turrican.png"});
    EXPECT_EQ(First("TURRICAN"), "Turrican.png");
    Write({"Turrican.jpg"});
    EXPECT_EQ(First("Turrican"), "Turrican.jpg");
    EXPECT_EQ(First("Turrican", ".png"), "Turrican.png");
    EXPECT_EQ(First("Turrican", ".gif"), std::nullopt);
    EXPECT_EQ(First("Turrican", ".nfo"), "Turrican.nfo");
    EXPECT_EQ(First("Turrican3"), std::nullopt);
}

TEST_F(FirstMatchLinux, StemOfTheImageComesBehindTheNamesOwn) {
    Write({"Tetris 2.png", "Tetris.png", "Tetri.x"});
    EXPECT_EQ(First("Tetri", "", "Tetris"), "Tetris.png");
    Write({"Tetri.png"});
    EXPECT_EQ(First("Tetri", "", "Tetris"), "Tetri.png");
}

TEST_F(FirstMatchLinux, SeesNewRenamedAndRemovedFilesAtOnce) {
    EXPECT_EQ(First("Game"), std::nullopt);
    for (int round = 0; round < 50; ++round) {
        const std::string name = "Game " + std::to_string(round) + ".png";
        Write({name});
        EXPECT_EQ(First("Game"), name);
        fs::rename(directory.Path(name), directory.Path("Game.png"));
        EXPECT_EQ(First("Game"), "Game.png");
        fs::remove(directory.Path("Game.png"));
        EXPECT_EQ(First("Game"), std::nullopt);
    }
}

TEST_F(FirstMatchLinux, RegularFilesAlone) {
    fs::create_directory(directory.Path("Game.png"));
    Write({".Game.png"});
    ::mkfifo(directory.Path("Game.jpg").c_str(), 0600);
    fs::create_symlink("nowhere", directory.Path("Game.gif"));
    EXPECT_EQ(First("Game"), std::nullopt);
    EXPECT_EQ(First(".Game"), std::nullopt);
    Write({"Game.bmp"});
    fs::remove(directory.Path("Game.gif"));
    fs::create_symlink("Game.bmp", directory.Path("Game.ajpg"));
    EXPECT_EQ(First("Game"), "Game.bmp");
}

TEST_F(FirstMatchLinux, LinkThatHasLostItsFileIsPassedOver) {
    directory.Write("other/file", "x");
    Write({"Game b.png"});
    fs::create_symlink(directory.Path("other/file"), directory.Path("Game a.png"));
    EXPECT_EQ(First("Game"), "Game a.png");
    fs::remove(directory.Path("other/file"));
    EXPECT_EQ(First("Game"), "Game b.png");
}

TEST_F(FirstMatchLinux, NoDirectory) {
    EXPECT_EQ(files.FirstMatch(directory.Path("none"), "a", "", ""), std::nullopt);
    EXPECT_EQ(files.FirstMatch("", "a", "", ""), std::nullopt);
    EXPECT_EQ(files.FirstMatch(std::string("/\0/", 3), "a", "", ""), std::nullopt);
    Write({"file"});
    EXPECT_EQ(files.FirstMatch(directory.Path("file"), "a", "", ""), std::nullopt);
}

TEST_F(FirstMatchLinux, DirectoryInAnyCase) {
    EXPECT_EQ(files.FindDirectory(directory.Root(), "Pictures"), std::nullopt);
    fs::create_directory(directory.Path("pictures"));
    EXPECT_EQ(files.FindDirectory(directory.Root(), "Pictures"), "pictures");
    fs::create_directory(directory.Path("PICTURES"));
    EXPECT_EQ(files.FindDirectory(directory.Root() + "/", "Pictures"), "PICTURES");
    fs::create_directory(directory.Path("Pictures"));
    EXPECT_EQ(files.FindDirectory(directory.Root(), "Pictures"), "Pictures");
    Write({"Skin"});
    EXPECT_EQ(files.FindDirectory(directory.Root(), "Skin"), std::nullopt);
}

// Many names of few letters, so that all of them begin alike somehow.
TEST_F(FirstMatchLinux, AgreesWithWhatAnyFileSystemGives) {
    std::mt19937 random(7);
    const auto pick = [&](const std::vector<std::string>& from) {
        return from[random() % from.size()];
    };
    const std::vector<std::string> letters{"a", "A", "b", " ", ".", "ü", "Ü", "[", "*", "\xff"};
    const std::vector<std::string> endings{".png", ".PNG", ".jpg", ".gif", ".nfo", "", ".jpeg"};
    const auto word = [&](int most) {
        std::string text = pick({"a", "A", "b", "ü"});
        for (int i = 0; i < most; ++i)
            if (random() % 2 != 0) text += pick(letters);
        return text;
    };
    for (int i = 0; i < 300; ++i)
        directory.Write(word(4) + pick(endings), "x");
    for (int i = 0; i < 2000; ++i) {
        const std::string prefix = word(3), ending = pick(endings), stem = word(4);
        EXPECT_EQ(First(prefix, ending, stem), Plain(prefix, ending, stem))
            << prefix << "*" << ending << " " << stem;
    }
}

// One directory behind a clock of the test's.
class NameIndexesLinux : public ::testing::Test {
 protected:
    static constexpr std::int64_t second = 1'000'000'000;

    NameIndexesLinux() { Stamp(1000 * second); }
    void Stamp(std::int64_t at) {
        const timespec time{at / second, at % second};
        const timespec times[] = {time, time};
        ASSERT_EQ(::utimensat(AT_FDCWD, directory.Root().c_str(), times, 0), 0);
    }
    int ReadingsAt(std::int64_t at) {
        now = at;
        const int before = indexes.Readings();
        EXPECT_TRUE(indexes.Of(directory.Root(), read));
        return indexes.Readings() - before;
    }

    kivu::testing::TemporaryDirectory directory;
    LinuxFileSystem files;
    std::int64_t now = 0;
    NameIndexes indexes{[this] { return now; }};
    const NameIndexes::Read read = [this](const std::string& path) {
        return files.ReadDirectory(path);
    };
};

TEST_F(NameIndexesLinux, OldDirectoryIsReadOnceUntilItChanges) {
    EXPECT_EQ(ReadingsAt(1002 * second), 1);
    EXPECT_EQ(ReadingsAt(1002 * second), 0);
    EXPECT_EQ(ReadingsAt(9999 * second), 0);
    Stamp(1001 * second);
    EXPECT_EQ(ReadingsAt(9999 * second), 1);
    EXPECT_EQ(ReadingsAt(9999 * second), 0);
}

TEST_F(NameIndexesLinux, DirectoryThatHasJustChangedIsReadAgain) {
    EXPECT_EQ(ReadingsAt(1000 * second), 1);
    EXPECT_EQ(ReadingsAt(1000 * second), 1) << "a change in the same moment leaves no trace";
    EXPECT_EQ(ReadingsAt(1001 * second), 1);
    EXPECT_EQ(ReadingsAt(1002 * second), 0);
    // A disk that counts in steps of two seconds.
    EXPECT_EQ(ReadingsAt(1003 * second), 1);
    EXPECT_EQ(ReadingsAt(1004 * second), 0);
    EXPECT_EQ(ReadingsAt(9999 * second), 0);
}

TEST_F(NameIndexesLinux, ClockOfAnotherMachineIsBelievedForTwoSeconds) {
    EXPECT_EQ(ReadingsAt(500 * second), 1);
    EXPECT_EQ(ReadingsAt(501 * second), 0);
    EXPECT_EQ(ReadingsAt(502 * second), 1);
    // Set back.
    EXPECT_EQ(ReadingsAt(400 * second), 1);
}

TEST_F(NameIndexesLinux, TheOldestGoWhenThereAreTooManyNames) {
    NameIndexes few{[] { return 9999 * second; }, 20'000};
    const auto directoryOf = [&](int number) {
        return directory.Path("d" + std::to_string(number));
    };
    for (int number = 0; number < 8; ++number) {
        for (int file = 0; file < 50; ++file)
            directory.Write(
                "d" + std::to_string(number) + "/" + std::string(40, 'n') + std::to_string(file),
                "");
        EXPECT_TRUE(few.Of(directoryOf(number), read));
        EXPECT_LE(few.Bytes(), 20'000U);
    }
    const int readings = few.Readings();
    EXPECT_TRUE(few.Of(directoryOf(7), read));
    EXPECT_EQ(few.Readings(), readings);
    EXPECT_TRUE(few.Of(directoryOf(0), read));
    EXPECT_EQ(few.Readings(), readings + 1);
}

TEST_F(NameIndexesLinux, DirectoryOfTooManyNamesIsReadAndNotKept) {
    NameIndexes none{[] { return 9999 * second; }, 100};
    directory.Write("Game.png", "");
    for (int round = 1; round < 3; ++round) {
        const auto index = none.Of(directory.Root(), read);
        ASSERT_TRUE(index);
        EXPECT_EQ(index->FirstFile("game", "", ""), "Game.png");
        EXPECT_EQ(none.Readings(), round);
        EXPECT_EQ(none.Bytes(), 0U);
    }
}

TEST_F(NameIndexesLinux, RemovedDirectoryIsForgotten) {
    EXPECT_EQ(ReadingsAt(2000 * second), 1);
    EXPECT_GT(indexes.Bytes(), 0U);
    fs::remove_all(directory.Root());
    EXPECT_FALSE(indexes.Of(directory.Root(), read));
    EXPECT_EQ(indexes.Bytes(), 0U);
}

TEST_F(NameIndexesLinux, HoldsANameInLittleMemory) {
    platform::FileSystem::Listing listing;
    for (int i = 0; i < 10'000; ++i)
        listing.Add("Turrican (1990)(Rainbow Arts)(" + std::to_string(i) + ").png", false, false);
    EXPECT_LE(NameIndex(listing).Bytes(), 150U * 10'000);
}

TEST_F(NameIndexesLinux, ThreadsMayLookAtTheSameTime) {
    directory.Write("Game.png", "");
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&, thread] {
            for (int i = 0; i < 100; ++i) {
                if (thread == 0) directory.Write("new" + std::to_string(i), "");
                EXPECT_EQ(files.FirstMatch(directory.Root(), "game", "", ""), "Game.png");
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

}  // namespace
}  // namespace kivu::hosts
